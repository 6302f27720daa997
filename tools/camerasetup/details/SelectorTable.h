#pragma once

#include "tools/camerasetup/details/SelectorCalls.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class ChangeHistory;
class EditorNote;
class PresentSelectors;
class QLabel;
class QPushButton;
class QTableView;
class SelectorModel;
struct SelectorReading;

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
    /// values in the background, and again after each change while the table is visible. Changes that the
    /// camera reports again and again lead to a read now and then, so that it has time for other calls.
    void setFeature(const QString &name);

    /// Returns true if the feature is a selector or has one.
    static bool hasTable(const CvxCPP::NodeInfo &info)
    {
        return !info.selectors.empty() || !info.selected.empty();
    }

    const QString &selector() const { return m_selector; }

signals:
    void featureRequested(const QString &name);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// A cell that a person has changed.
    struct Change
    {
        SelectedValue written;
        CvxCPP::NodeValue before;
    };

    void createView();
    void connectParts();
    QString selectorFor(const QString &name) const;
    void rebuild();
    void showTitle();
    void watchRows(bool isWatching);
    void onStateChanged(const QString &name);
    void followHistory();
    void readSoon();
    void readLater();
    void read();
    void continueReading();
    void takeReading(const CvxCPP::CvxResult &result);
    void showValues(const SelectorValues &values);
    void showCurrentFeature();
    void showRefused(const QModelIndex &index, const QString &text);
    void write(const QModelIndex &index, const CvxCPP::NodeValue &value);
    void writePaused();
    void dropQuestion();
    void startWriting(const Change &change, CameraJobs::StreamUse stream);
    void takeWritten(const CvxCPP::CvxResult &result, const Change &change);

    FeatureClient &m_client;
    CameraJobs &m_jobs;
    const PresentSelectors &m_selectors;
    ChangeHistory &m_history;
    SelectorModel *m_model;
    QTableView *m_view;
    QLabel *m_title;
    QLabel *m_readMessage; ///< About the last read.
    QLabel *m_message; ///< About the last change of a cell.
    EditorNote *m_question;
    QPushButton *m_refresh;
    QString m_feature; ///< What setFeature() was called with.
    QString m_selector; ///< Empty if there is no table.
    QStringList m_rows;
    QStringList m_watched;
    QTimer m_readTimer; ///< Turns several changes into one read.
    std::shared_ptr<SelectorReading>
        m_reading; ///< The last read; null if its features are not shown any more.
    std::chrono::milliseconds m_readTime{0}; ///< What the last complete read took.
    std::vector<SelectorSetting> m_outer; ///< Under which the shown values were read.
    std::optional<Change> m_pending; ///< What the question is about.
    bool m_isReading = false;
    bool m_isOutdated = false; ///< A change arrived while the table was being read.
    int m_entryCount = 0; ///< Length of the history when it was looked at last.
};
