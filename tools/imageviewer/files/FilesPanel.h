#pragma once

#include "tools/imageviewer/files/FileNamePattern.h"
#include "tools/imageviewer/files/LimitBox.h"
#include "tools/imageviewer/files/RecordingControl.h"
#include "tools/imageviewer/files/SnapshotSaver.h"

#include <QWidget>

#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class ToolSettings;

/// Saves snapshots and recordings: where, how they are called, in which format, and how a recording goes on.
/// Messages appear in the panel and block nothing.
class FilesPanel : public QWidget
{
    Q_OBJECT

public:
    /// Returns the image that is shown or frozen; null if there is none.
    using ShownImage = std::function<std::shared_ptr<const CvxCPP::Image>()>;

    FilesPanel(
        SnapshotSaver &saver, RecordingControl &recording, ShownImage shownImage, QWidget *parent = nullptr);

    void saveSettings(ToolSettings &settings) const;
    void restoreSettings(const ToolSettings &settings);

    SnapshotOptions snapshotOptions() const;
    RecordingOptions recordingOptions() const;

public slots:
    /// Saves the image that is shown.
    void saveSnapshot();

    /// Starts a recording, or ends the one that runs.
    void toggleRecording();

    /// Shows a message about files, for example of the thumbnails.
    void showProblem(const QString &text);

private:
    QWidget *createPlace();
    QWidget *createSnapshot();
    QWidget *createRecording();
    QWidget *createLimits(QWidget *parent);
    void chooseFolder();
    void showPreview();
    void showState();
    void showProgress();
    void showFormat();
    void takeSaved(const QString &path);
    void takeFinished(const RecordingResult &result);
    QVector<QPair<QString, LimitBox *>> limits() const; // Returns the limits and their names in the settings.

    SnapshotSaver &m_saver;
    RecordingControl &m_recording;
    const ShownImage m_shownImage;
    QLineEdit *m_folder = nullptr;
    QLineEdit *m_pattern = nullptr;
    QLabel *m_preview = nullptr;
    QComboBox *m_snapshotFormat = nullptr;
    QPushButton *m_snapshot = nullptr;
    QLabel *m_snapshotMessage = nullptr;
    QComboBox *m_recordingFormat = nullptr;
    QLabel *m_formatHint = nullptr;
    LimitBox *m_maxImages = nullptr;
    LimitBox *m_maxSeconds = nullptr;
    LimitBox *m_minFree = nullptr;
    LimitBox *m_playbackRate = nullptr;
    QWidget *m_limits = nullptr;
    QPushButton *m_record = nullptr;
    QLabel *m_progress = nullptr;
    QLabel *m_recordingMessage = nullptr;
};
