#pragma once

#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QString>
#include <QWidget>

class CameraFinder;
class FeatureClient;
class ToolSettings;

/// Compares any two of: this camera now, this camera at opening, another camera, a file, a user set. Shows
/// the differences by category; equal settings and those that belong to one camera or one moment can be shown
/// too. One, some or all differences can be copied from left to right: to this camera, to another camera, to
/// a file or to a user set. The differences can be saved as text or HTML.
class ComparePanel : public QWidget
{
    Q_OBJECT

public:
    /// What the panel works with; everything outlives it.
    struct Parts
    {
        FeatureClient &client;
        CameraFinder &finder;
        CameraJobs &jobs;
        ChangeHistory &history;
        OpeningSnapshot &opening;
        ToolSettings &settings; ///< Remembers the directory of the files.
    };

    explicit ComparePanel(const Parts &parts, QWidget *parent = nullptr);

public slots:
    /// Compares the opening (left) with now (right).
    void compareWithOpening();

    /// Compares a file (left) with this camera now (right).
    void compareWithFile(const QString &file);

    /// Compares a user set (left) with this camera now (right).
    void compareWithUserSet(const QString &userSet);

signals:
    void featureRequested(const QString &name);
};
