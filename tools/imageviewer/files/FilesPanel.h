#pragma once

#include "tools/imageviewer/files/FileNamePattern.h"
#include "tools/imageviewer/files/RecordingControl.h"
#include "tools/imageviewer/files/SnapshotSaver.h"

#include <QWidget>

#include <functional>

class QSettings;

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

    void saveSettings(QSettings &settings) const;
    void restoreSettings(const QSettings &settings);

    SnapshotOptions snapshotOptions() const;
    RecordingOptions recordingOptions() const;

public slots:
    /// Saves the image that is shown.
    void saveSnapshot();

    /// Starts a recording, or ends the one that runs.
    void toggleRecording();

private:
    SnapshotSaver &m_saver;
    RecordingControl &m_recording;
    const ShownImage m_shownImage;
};
