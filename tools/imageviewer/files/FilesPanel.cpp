#include "tools/imageviewer/files/FilesPanel.h"

FilesPanel::FilesPanel(
    SnapshotSaver &saver, RecordingControl &recording, ShownImage shownImage, QWidget *parent)
    : QWidget(parent), m_saver(saver), m_recording(recording), m_shownImage(std::move(shownImage))
{ }
