#include "tools/imageviewer/ViewerWindow.h"

#include "tools/imageviewer/PictureReadout.h"
#include "tools/imageviewer/ViewerActions.h"
#include "tools/imageviewer/ViewerChoices.h"
#include "tools/imageviewer/files/FilesPanel.h"
#include "tools/imageviewer/files/ThumbnailStrip.h"
#include "tools/imageviewer/measuring/MeasuringPanel.h"
#include "tools/imageviewer/numbers/DetailsPage.h"
#include "tools/imageviewer/numbers/StatusNumbers.h"
#include "tools/imageviewer/panel/CameraPanel.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/window/ConnectionBar.h"
#include "tools/kit/window/ToolStarter.h"

#include <QDockWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <chrono>
#include <utility>

namespace {

using std::chrono_literals::operator""s;

/// After this time without a picture, the canvas says why there may be none.
constexpr std::chrono::milliseconds hintDelay = 3s;

void showDock(QDockWidget &dock)
{
    dock.show();
    dock.raise();
    dock.widget()->setFocus();
}

} // namespace

ViewerWindow::ViewerWindow(const QString &camera, ToolSettings &settings)
    : ToolWindow({tr("Image Viewer"), camera, QStringLiteral("image-viewer")}, settings),
      m_stream(connection(), this),
      m_feed(this),
      m_measurer(this),
      m_monitor(m_stream, m_feed, features(), this),
      m_records(connection(), this),
      m_saver(m_records, this),
      m_recording(m_stream, m_records, this),
      m_correction(m_records, settings, this),
      m_pauser(m_stream),
      m_canvas(new ImageCanvas(this)),
      m_actions(new ViewerActions(*m_canvas, this)),
      m_cameraPanel(new CameraPanel(features(), this)),
      m_measuringPanel(new MeasuringPanel(this))
{
    m_cameraPanel->setStreamPauser(&m_pauser);
    m_monitor.setBuffers(streamBuffers);
    m_hintTimer.setSingleShot(true);
    m_hintTimer.setInterval(hintDelay);
    setContent(m_canvas);
    connectionBar().setShowsLoss(false); // The canvas shows it.
    createDocks();
    createMenus();
    createStatusBar();
    connectStream();
    connectCanvas();
    connectPanels();
    connectActions();
    connectCorrection();
    restoreChoices();
    onConnectionChanged();
}

ViewerWindow::~ViewerWindow()
{
    // The sinks are members of this class, and the stream must not call them any more.
    m_stream.removeSink(&m_feed);
    m_stream.removeSink(&m_measurer);
    deleteWidgets();
}

QDockWidget *ViewerWindow::addPanel(
    const QString &name, const QString &title, QWidget *panel, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(name); // saveState() needs it.
    dock->setWidget(panel);
    addDockWidget(area, dock);
    m_docks.append(dock);
    return dock;
}

void ViewerWindow::createDocks()
{
    m_filesPanel = new FilesPanel(
        m_saver, m_recording, [this] { return m_feed.image(); }, this);
    m_thumbnails = new ThumbnailStrip(this);
    auto *details = new DetailsPage(m_monitor, this);
    QDockWidget *const camera
        = addPanel(QStringLiteral("cameraDock"), tr("Camera"), m_cameraPanel, Qt::RightDockWidgetArea);
    auto *const measuring
        = addPanel(QStringLiteral("measuringDock"), tr("Measure"), m_measuringPanel, Qt::RightDockWidgetArea);
    m_files = addPanel(QStringLiteral("filesDock"), tr("Files"), m_filesPanel, Qt::RightDockWidgetArea);
    m_details = addPanel(QStringLiteral("detailsDock"), tr("Stream"), details, Qt::RightDockWidgetArea);
    for (QDockWidget *dock : {measuring, m_files, m_details})
        tabifyDockWidget(camera, dock);
    camera->raise();
    addPanel(QStringLiteral("snapshotsDock"), tr("Snapshots"), m_thumbnails, Qt::BottomDockWidgetArea)
        ->hide();
    setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea); // The panels keep their height.
}

void ViewerWindow::createMenus()
{
    QMenu *const file = menuBar()->addMenu(tr("&File"));
    m_actions->addToFileMenu(file);
    file->addSeparator();
    addQuitEntry(file);
    QMenu *const camera = menuBar()->addMenu(tr("&Camera"));
    m_actions->addToCameraMenu(camera);
    addCameraEntries(camera);
    m_actions->addToViewMenu(menuBar()->addMenu(tr("&View")));
    QMenu *const panels = menuBar()->addMenu(tr("&Panels"));
    int key = Qt::Key_1;
    for (QDockWidget *dock : m_docks) {
        QAction *const show = panels->addAction(dock->windowTitle(), this, [dock] { showDock(*dock); });
        show->setShortcut(Qt::ALT + key++);
    }
    addHelpMenu(ViewerActions::canvasKeys());

    QToolBar *const bar = addToolBar(tr("Tool bar"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    m_actions->addToToolBar(bar);
    // In full screen, menus and tool bar are hidden, and only the window keeps the shortcuts.
    addActions(m_actions->findChildren<QAction *>());
}

void ViewerWindow::createStatusBar()
{
    m_readout = new QLabel(this);
    m_readout->setObjectName(QStringLiteral("readout"));
    m_readout->setAccessibleName(tr("Pixel under the pointer"));
    statusBar()->addWidget(m_readout, 1);
    m_correctionState = new QLabel(this);
    m_correctionState->setObjectName(QStringLiteral("correctionState"));
    statusBar()->addPermanentWidget(m_correctionState);
    auto *numbers = new StatusNumbers(m_monitor, this);
    connect(numbers, &StatusNumbers::clicked, this, [this] { showDock(*m_details); });
    statusBar()->addPermanentWidget(numbers);
}

/// Shows the panel whose message says what has failed.
void ViewerWindow::showFiles()
{
    m_files->show();
    m_files->raise();
}

void ViewerWindow::restoreChoices()
{
    ViewerChoices::restore(settings(), *m_canvas, *m_measuringPanel, *m_actions);
    m_cameraPanel->restoreState(settings().values());
    m_filesPanel->restoreSettings(settings());
    restoreLayout();
}

void ViewerWindow::closeEvent(QCloseEvent *event)
{
    setFullScreen(false);
    ViewerChoices::save(settings(), *m_canvas, *m_measuringPanel, *m_actions);
    m_cameraPanel->saveState(settings().values());
    m_filesPanel->saveSettings(settings());
    ToolWindow::closeEvent(event);
}

void ViewerWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_actions->fullScreen->isChecked())
        m_actions->fullScreen->setChecked(false);
    else
        ToolWindow::keyPressEvent(event);
}

void ViewerWindow::onConnectionChanged()
{
    using State = CameraConnection::State;
    const State state = connection().state();
    if (state == State::Opening) {
        m_startsWhenOpen = true;
        endRegionDrawing();
        m_actions->freeze->setChecked(false);
        m_feed.clear();
        m_measurer.clear();
        m_canvas->clear();
        m_measuringPanel->clear();
    }
    if (state == State::Open && std::exchange(m_startsWhenOpen, false))
        startStream();
    m_canvas->setNotice(state == State::Lost ? ConnectionBar::lossText(connection()) : QString());
    onStreamChanged();
}

void ViewerWindow::startStream()
{
    m_stream.start(streamBuffers);
}

void ViewerWindow::onStreamChanged()
{
    using State = LiveStream::State;
    const State state = m_stream.state();
    const bool isOpen = connection().state() == CameraConnection::State::Open;
    m_actions->live->setEnabled(isOpen && state != State::Starting && state != State::Stopping);
    m_actions->live->setChecked(state == State::Starting || state == State::Running);
    m_canvas->setHint(QString());
    if (state == State::Failed)
        m_canvas->setHint(tr("The camera sends no pictures. %1").arg(m_stream.problem()));
    else if (state == State::Stopped && isOpen)
        m_canvas->setHint(tr("The stream is stopped. Press %1 to start it.")
                              .arg(m_actions->live->shortcut().toString(QKeySequence::NativeText)));
    else if (state == State::Running)
        m_hintTimer.start();
}

void ViewerWindow::updateHint()
{
    if (m_stream.state() != LiveStream::State::Running || m_stream.statistics().delivered > 0)
        return;
    if (!connection().isControlled())
        return m_canvas->setHint(
            tr("No picture has arrived yet. The program that controls the camera may not stream."));
    const CvxCPP::NodeState *const trigger = features().state(QStringLiteral("TriggerMode"));
    const auto *const mode = trigger ? std::get_if<std::string>(&trigger->value) : nullptr;
    m_canvas->setHint(mode && *mode == "On"
            ? tr("The camera waits for a trigger. Send one, or switch the trigger mode off in the panel "
                 "\"Camera\".")
            : tr("No picture has arrived yet. The panel \"Stream\" may say why."));
}

void ViewerWindow::setFrozen(bool isFrozen)
{
    m_feed.setFrozen(isFrozen);
    m_measurer.setFrozenImage(isFrozen ? m_feed.image() : nullptr);
}

void ViewerWindow::setFullScreen(bool isFullScreen)
{
    if (isFullScreen == this->isFullScreen())
        return;
    if (isFullScreen) {
        m_layoutBeforeFullScreen = saveState();
        for (QDockWidget *dock : m_docks)
            dock->hide();
        setWindowState(windowState() | Qt::WindowFullScreen);
    } else {
        setWindowState(windowState() & ~Qt::WindowFullScreen);
        restoreState(m_layoutBeforeFullScreen);
    }
    menuBar()->setVisible(!isFullScreen);
    statusBar()->setVisible(!isFullScreen);
    findChild<QToolBar *>(QStringLiteral("toolBar"))->setVisible(!isFullScreen);
    m_canvas->setFocus();
}

void ViewerWindow::drawRegion()
{
    m_actions->toolAction(ImageCanvas::Tool::Region)->trigger();
    removeRegion(); // Otherwise a click would apply the region that was measured.
    m_isDrawingCameraRegion = true; // After the action, which ends an earlier drawing.
    statusBar()->showMessage(tr("Draw the region that the camera shall send."));
    m_canvas->setFocus();
}

void ViewerWindow::endRegionDrawing()
{
    if (std::exchange(m_isDrawingCameraRegion, false))
        statusBar()->clearMessage();
}

void ViewerWindow::removeRegion()
{
    m_canvas->setRegion({});
    m_measuringPanel->setRegion({}); // The canvas only reports what a person has changed.
}

void ViewerWindow::onDrawingFinished()
{
    const QRect region = m_canvas->region();
    if (!m_isDrawingCameraRegion || region.isEmpty())
        return;
    m_actions->toolAction(ImageCanvas::Tool::Pan)->trigger(); // Ends the drawing.
    m_cameraPanel->applyRegion(region, m_canvas->picture().pictureSize);
}

void ViewerWindow::setPicking(bool isPicking)
{
    endRegionDrawing();
    if (isPicking)
        m_canvas->setTool(ImageCanvas::Tool::Pick);
    else
        m_actions->toolAction(ImageCanvas::Tool::Pan)->trigger();
}

void ViewerWindow::onPicked(const QPoint &pixel)
{
    if (const auto image = m_feed.image())
        m_measuringPanel->balanceWhite(*image, pixel);
}

void ViewerWindow::showPointer(const QPoint &pixel)
{
    m_pointer = pixel;
    if (pixel.x() >= 0)
        m_measuringPanel->setPointer(pixel);
    updateReadout();
}

void ViewerWindow::updateReadout()
{
    m_readout->setText(PictureReadout::describe(m_canvas->picture(), m_pointer));
}

void ViewerWindow::openCameraSetup()
{
    showProblem(ToolStarter::start(QStringLiteral("CameraSetup"), connection().camera().id));
}
