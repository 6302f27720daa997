#pragma once

#include "tools/kit/camera/FeatureClient.h"

#include <QString>
#include <QWidget>

class CameraJobs;
class ChangeHistory;
class PresentSelectors;

/// The features that one selector selects, with the values for each value of the selector side by side, for
/// example the gain of each tap: one row per feature, one column per value of the selector. A cell can be
/// edited: the camera gets the value under this selector value, and the selector is restored. Cells that are
/// locked or not available say why. With several selectors, the other ones keep their present values, which
/// a line above the table names.
class SelectorTable : public QWidget
{
    Q_OBJECT

public:
    /// The objects must outlive the table.
    SelectorTable(FeatureClient &client, CameraJobs &jobs, const PresentSelectors &selectors,
        ChangeHistory &history, QWidget *parent = nullptr);

    /// Shows the table of a selector, or that of the innermost selector of a selected feature. Reads all
    /// values in the background, and again after each change that the camera reports while the table is
    /// visible.
    void setFeature(const QString &name);

    /// Returns true if the feature is a selector or has one.
    static bool hasTable(const CvxCPP::NodeInfo &info)
    {
        return !info.selectors.empty() || !info.selected.empty();
    }

signals:
    void featureRequested(const QString &name);
};
