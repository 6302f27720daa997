// Connects the parts of the window.

#include "tools/imageviewer/ViewerActions.h"
#include "tools/imageviewer/ViewerWindow.h"
#include "tools/imageviewer/files/FilesPanel.h"
#include "tools/imageviewer/files/RecordingSummary.h"
#include "tools/imageviewer/files/ThumbnailStrip.h"
#include "tools/imageviewer/measuring/MeasuringPanel.h"
#include "tools/imageviewer/panel/CameraPanel.h"
#include "tools/imageviewer/panel/WhiteBalanceCall.h"
#include "tools/kit/window/ToolStarter.h"

void ViewerWindow::connectStream()
{
    m_stream.addSink(&m_feed);
    m_stream.addSink(&m_measurer);
    connect(&connection(), &CameraConnection::stateChanged, this, &ViewerWindow::onConnectionChanged);
    connect(&m_stream, &LiveStream::stateChanged, this, &ViewerWindow::onStreamChanged);
    connect(&m_feed, &PictureFeed::pictureSizeChanged, this, [this](const QSize &size) {
        m_canvas->setPictureSize(size);
        m_feed.setRequest(m_canvas->request());
    });
    connect(&m_feed, &PictureFeed::rendered, m_canvas, &ImageCanvas::setPicture);
    connect(&m_feed, &PictureFeed::rendered, this, &ViewerWindow::updateReadout);
    connect(&m_measurer, &Measurer::measured, m_measuringPanel, &MeasuringPanel::setMeasurements);
    connect(&m_hintTimer, &QTimer::timeout, this, &ViewerWindow::updateHint);
}

void ViewerWindow::connectCanvas()
{
    connect(m_canvas, &ImageCanvas::requestChanged, this, [this] { m_feed.setRequest(m_canvas->request()); });
    connect(m_canvas, &ImageCanvas::painted, this, [this] { m_feed.accept(); });
    connect(m_canvas, &ImageCanvas::pointerMoved, this, &ViewerWindow::showPointer);
    connect(m_canvas, &ImageCanvas::pointerLeft, this, [this] { showPointer({-1, -1}); });
    connect(m_canvas, &ImageCanvas::regionChanged, m_measuringPanel, &MeasuringPanel::setRegion);
    connect(m_canvas, &ImageCanvas::drawingFinished, this, &ViewerWindow::onDrawingFinished);
    connect(m_canvas, &ImageCanvas::lineChanged, m_measuringPanel, &MeasuringPanel::setLine);
    connect(m_canvas, &ImageCanvas::picked, this, &ViewerWindow::onPicked);
}

void ViewerWindow::connectPanels()
{
    connect(m_cameraPanel, &CameraPanel::drawRegionRequested, this, &ViewerWindow::drawRegion);
    connect(m_cameraPanel, &CameraPanel::regionApplied, this, &ViewerWindow::removeRegion);
    connect(m_cameraPanel, &CameraPanel::openCameraSetupRequested, this, &ViewerWindow::openCameraSetup);
    connect(m_cameraPanel, &CameraPanel::whiteBalanceWritten, m_measuringPanel,
        &MeasuringPanel::resetWhiteBalance);

    connect(m_measuringPanel, &MeasuringPanel::measureRequestChanged, this,
        [this](const MeasureRequest &request) { m_measurer.setRequest(request); });
    connect(m_measuringPanel, &MeasuringPanel::displaySettingsChanged, this, &ViewerWindow::updateDisplay);
    connect(m_measuringPanel, &MeasuringPanel::displaySettingsChanged, m_actions->clipMarks,
        [this](const DisplaySettings &display) { m_actions->clipMarks->setChecked(display.hasClipMarks); });
    connect(m_measuringPanel, &MeasuringPanel::micrometresPerPixelChanged, m_canvas,
        &ImageCanvas::setMicrometresPerPixel);
    connect(m_measuringPanel, &MeasuringPanel::greyPickingChanged, this, &ViewerWindow::setPicking);
    connect(m_measuringPanel, &MeasuringPanel::whiteBalanceWriteRequested, m_cameraPanel,
        &CameraPanel::writeWhiteBalance);
    connect(&features(), &FeatureClient::nodesLoaded, m_measuringPanel,
        [this] { m_measuringPanel->setWhiteBalanceWritable(canBalanceWhite(features())); });

    connect(&m_saver, &SnapshotSaver::saved, m_thumbnails,
        [this](const QString &path, const QImage &picture) { m_thumbnails->add(path, picture); });
    connect(m_thumbnails, &ThumbnailStrip::failed, m_filesPanel, &FilesPanel::showProblem);
    connect(m_thumbnails, &ThumbnailStrip::failed, this, &ViewerWindow::showFiles);
    connect(&m_saver, &SnapshotSaver::failed, this, &ViewerWindow::showFiles);
    connect(&m_recording, &RecordingControl::finished, this, [this](const RecordingResult &result) {
        if (!result.problem.isEmpty() || !RecordingSummary::lossText(result.progress).isEmpty())
            showFiles();
    });
    connect(&m_saver, &SnapshotSaver::saved, m_thumbnails->parentWidget(), &QWidget::show);
}

void ViewerWindow::connectActions()
{
    connect(m_actions->live, &QAction::triggered, this,
        [this](bool isOn) { isOn ? startStream() : m_stream.stop(); });
    connect(m_actions->freeze, &QAction::toggled, this, &ViewerWindow::setFrozen);
    connect(m_actions->snapshot, &QAction::triggered, m_filesPanel, &FilesPanel::saveSnapshot);
    connect(m_actions->record, &QAction::triggered, m_filesPanel, &FilesPanel::toggleRecording);
    const auto showRecording
        = [this] { m_actions->record->setChecked(m_recording.state() != RecordingControl::State::Idle); };
    connect(&m_recording, &RecordingControl::stateChanged, m_actions->record, showRecording);
    connect(&m_recording, &RecordingControl::finished, m_actions->record, showRecording); // It may not begin.
    connect(
        m_actions->record, &QAction::triggered, this, showRecording); // A click while it ends does nothing.
    for (const auto tool : {ImageCanvas::Tool::Pan, ImageCanvas::Tool::Region, ImageCanvas::Tool::Line})
        connect(m_actions->toolAction(tool), &QAction::triggered, this, &ViewerWindow::endRegionDrawing);
    connect(m_actions->clipMarks, &QAction::triggered, m_measuringPanel, [this](bool isOn) {
        DisplaySettings display = m_measuringPanel->displaySettings();
        display.hasClipMarks = isOn;
        m_measuringPanel->setDisplaySettings(display);
    });
    connect(m_actions->fullScreen, &QAction::toggled, this, &ViewerWindow::setFullScreen);
    connect(m_actions->newWindow, &QAction::triggered, this,
        [this] { showProblem(ToolStarter::start(QStringLiteral("ImageViewer"), QString())); });
    connect(m_actions->cameraSetup, &QAction::triggered, this, &ViewerWindow::openCameraSetup);
    connect(m_actions->corrections, &QAction::triggered, this, &ViewerWindow::openCorrections);
}
