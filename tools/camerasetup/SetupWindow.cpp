#include "tools/camerasetup/SetupWindow.h"

#include "tools/camerasetup/JobBar.h"
#include "tools/camerasetup/compare/ComparePanel.h"
#include "tools/camerasetup/details/DetailsPane.h"
#include "tools/camerasetup/details/SelectorTable.h"
#include "tools/camerasetup/history/HistoryPanel.h"
#include "tools/camerasetup/settings/RestoreBar.h"
#include "tools/camerasetup/settings/SettingsActions.h"
#include "tools/camerasetup/settings/UserSetPanel.h"
#include "tools/camerasetup/tree/TreePanel.h"
#include "tools/kit/canvas/LivePicture.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/window/ConnectionBar.h"
#include "tools/kit/window/ToolStarter.h"

#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace {

using Kind = ToolIcons::Kind;

/// The picture only helps to see what a change does, so it needs few buffers.
constexpr unsigned pictureBuffers = 4;

constexpr int minPictureHeight = 240;
constexpr int detailsWidth = 400;
constexpr int reportTime = 8000; // Milliseconds.

/// Returns the file that is being dropped; empty if it is not exactly one local file.
QString droppedFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

void showDock(QDockWidget &dock)
{
    dock.show();
    dock.raise();
    dock.widget()->setFocus();
}

} // namespace

SetupWindow::SetupWindow(const QString &camera, ToolSettings &settings)
    : ToolWindow({tr("Camera Setup"), camera, QStringLiteral("camera-setup")}, settings),
      m_selectors(features()),
      m_opening(features(), m_selectors),
      m_jobs(connection()),
      m_history(features(), m_jobs, m_selectors, m_opening),
      m_favourites(settings),
      m_stream(connection()),
      m_pauser(m_stream)
{
    m_jobs.setStreamPauser(&m_pauser);
    setAcceptDrops(true);
    createContent();
    createDocks();
    createMenus();
    createStatusBar();
    connectParts();
    m_tree->restoreState(settings.values());
    restoreLayout();
    onConnectionChanged();
}

SetupWindow::~SetupWindow()
{
    deleteWidgets();
}

void SetupWindow::createContent()
{
    m_tree = new TreePanel(features(), m_opening, m_favourites, this);
    m_tree->setStreamPauser(&m_pauser);
    m_compare = new ComparePanel({features(), finder(), m_jobs, m_history, m_opening, settings()}, this);
    m_tabs = new QTabWidget(this);
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(m_tree, tr("Features"));
    m_tabs->addTab(m_compare, tr("Compare"));
    auto *restoreBar = new RestoreBar(connection(), m_opening, this);
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(restoreBar);
    layout->addWidget(m_tabs, 1);
    setContent(content);
    connect(restoreBar, &RestoreBar::restoreRequested, this, &SetupWindow::restoreOpening);
    connect(restoreBar, &RestoreBar::compareRequested, this, &SetupWindow::showCompare);
    connect(restoreBar, &RestoreBar::compareRequested, m_compare, &ComparePanel::compareWithOpening);
}

QDockWidget *SetupWindow::addPanel(
    const QString &name, const QString &title, QWidget *panel, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(name); // saveState() needs it.
    dock->setWidget(panel);
    addDockWidget(area, dock);
    m_docks.append(dock);
    return dock;
}

void SetupWindow::createDocks()
{
    m_details = new DetailsPane({features(), m_selectors, m_opening, m_history, m_favourites}, this);
    m_details->setStreamPauser(&m_pauser);
    m_table = new SelectorTable(features(), m_jobs, m_selectors, m_history, this);
    m_picture = new LivePicture(m_stream, features(), this);
    auto *history = new HistoryPanel(m_history, this);
    auto *userSets = new UserSetPanel({features(), m_jobs, m_history, m_opening}, this);

    m_detailsDock
        = addPanel(QStringLiteral("featureDock"), tr("Feature"), m_details, Qt::RightDockWidgetArea);
    QDockWidget *const historyDock
        = addPanel(QStringLiteral("historyDock"), tr("History"), history, Qt::RightDockWidgetArea);
    QDockWidget *const setsDock
        = addPanel(QStringLiteral("userSetsDock"), tr("User sets"), userSets, Qt::RightDockWidgetArea);
    m_pictureDock
        = addPanel(QStringLiteral("pictureDock"), tr("Picture"), m_picture, Qt::RightDockWidgetArea);
    m_tableDock
        = addPanel(QStringLiteral("tableDock"), tr("All selector values"), m_table, Qt::BottomDockWidgetArea);
    tabifyDockWidget(m_detailsDock, historyDock);
    tabifyDockWidget(m_detailsDock, setsDock);
    m_detailsDock->raise();
    m_picture->setMinimumHeight(minPictureHeight);
    resizeDocks({m_detailsDock, m_pictureDock}, {detailsWidth, detailsWidth}, Qt::Horizontal);
    m_pictureDock->hide();
    m_tableDock->hide();
    setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);

    connect(history, &HistoryPanel::featureRequested, this, &SetupWindow::showFeature);
    connect(userSets, &UserSetPanel::compareRequested, this, &SetupWindow::showCompare);
    connect(userSets, &UserSetPanel::compareRequested, m_compare, &ComparePanel::compareWithUserSet);
}

void SetupWindow::createMenus()
{
    m_settingsActions = new SettingsActions({features(), m_jobs, m_history, m_opening, settings()}, this);
    QMenu *const file = menuBar()->addMenu(tr("&File"));
    m_settingsActions->addToMenu(file);
    connect(m_settingsActions, &SettingsActions::reported, statusBar(),
        [this](const QString &text) { statusBar()->showMessage(text, reportTime); });
    file->addSeparator();
    addQuitEntry(file);

    QMenu *const edit = menuBar()->addMenu(tr("&Edit"));
    QAction *const undo = edit->addAction(
        ToolIcons::icon(Kind::Undo), tr("&Undo"), &m_history, &ChangeHistory::undo, QKeySequence::Undo);
    QAction *const redo = edit->addAction(
        ToolIcons::icon(Kind::Redo), tr("&Redo"), &m_history, &ChangeHistory::redo, QKeySequence::Redo);
    const auto showHistory = [this, undo, redo] {
        const bool isControlled = connection().isControlled();
        undo->setEnabled(isControlled && m_history.canUndo());
        redo->setEnabled(isControlled && m_history.canRedo());
        undo->setToolTip(tr("Undo: %1").arg(m_history.undoTitle()));
        redo->setToolTip(tr("Redo: %1").arg(m_history.redoTitle()));
    };
    connect(&m_history, &ChangeHistory::changed, undo, showHistory);
    connect(&connection(), &CameraConnection::stateChanged, undo, showHistory);
    showHistory();
    edit->addSeparator();
    QAction *const find = edit->addAction(ToolIcons::icon(Kind::Search), tr("&Find a feature"), m_tree,
        &TreePanel::focusSearch, QKeySequence::Find);
    connect(find, &QAction::triggered, m_tabs, [this] { m_tabs->setCurrentWidget(m_tree); });

    QMenu *const camera = menuBar()->addMenu(tr("&Camera"));
    QAction *const picture = m_pictureDock->toggleViewAction();
    picture->setText(tr("Live &picture"));
    picture->setIcon(ToolIcons::icon(Kind::Play));
    picture->setShortcut(Qt::Key_F5);
    camera->addAction(picture);
    QAction *const compare = camera->addAction(
        ToolIcons::icon(Kind::Compare), tr("&Compare with the opening"), this, &SetupWindow::showCompare);
    compare->setShortcut(Qt::CTRL + Qt::Key_E);
    connect(compare, &QAction::triggered, m_compare, &ComparePanel::compareWithOpening);
    camera->addAction(tr("Open in the &Image Viewer"), this,
        [this] { showProblem(ToolStarter::start(QStringLiteral("ImageViewer"), connection().camera().id)); });
    addCameraEntries(camera);

    QMenu *const panels = menuBar()->addMenu(tr("&Panels"));
    int key = Qt::Key_1;
    for (QDockWidget *dock : m_docks) {
        QAction *const show = panels->addAction(dock->windowTitle(), this, [dock] { showDock(*dock); });
        show->setShortcut(Qt::ALT + key++);
    }
    addHelpMenu({{tr("F2, Return"), tr("Edit the value of the selected feature")},
        {tr("Left, Right"), tr("Collapse or expand a category")}});

    QToolBar *const bar = addToolBar(tr("Tool bar"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->addActions({m_settingsActions->save, m_settingsActions->load, m_settingsActions->restore});
    bar->addSeparator();
    bar->addActions({undo, redo});
    bar->addSeparator();
    bar->addActions({find, compare, picture});
}

void SetupWindow::createStatusBar()
{
    m_counts = new QLabel(this);
    statusBar()->addWidget(m_counts, 1);
    statusBar()->addPermanentWidget(new JobBar(m_jobs, this));
}

void SetupWindow::connectParts()
{
    connect(m_tree, &TreePanel::currentChanged, m_details, &DetailsPane::setFeature);
    connect(m_tree, &TreePanel::detailsRequested, m_detailsDock, [this] { showDock(*m_detailsDock); });
    connect(m_tree, &TreePanel::currentChanged, m_table, &SelectorTable::setFeature);
    connect(m_details, &DetailsPane::featureRequested, this, &SetupWindow::showFeature);
    connect(m_details, &DetailsPane::tableRequested, this, &SetupWindow::showTable);
    connect(m_table, &SelectorTable::featureRequested, this, &SetupWindow::showFeature);
    connect(m_compare, &ComparePanel::featureRequested, this, &SetupWindow::showFeature);
    connect(&m_history, &ChangeHistory::failed, this, &SetupWindow::showProblem);
    connect(&connection(), &CameraConnection::stateChanged, this, &SetupWindow::onConnectionChanged);
    connect(&m_stream, &LiveStream::stateChanged, this, &SetupWindow::followPicture);
    connect(m_pictureDock, &QDockWidget::visibilityChanged, this, &SetupWindow::onPictureVisible);
    connect(&features(), &FeatureClient::failed, this, &SetupWindow::showFailure);
    connect(&features(), &FeatureClient::nodesLoaded, this, &SetupWindow::showCounts);
    connect(&m_opening, &OpeningSnapshot::changedFeatures, this, &SetupWindow::showCounts);
    connect(&m_opening, &OpeningSnapshot::stateChanged, this, &SetupWindow::showCounts);
}

void SetupWindow::onConnectionChanged()
{
    const CameraConnection::State state = connection().state();
    if (state == CameraConnection::State::Opening) {
        m_favourites.setModel(connection().camera().model);
        m_picture->clear();
    }
    m_picture->setNotice(
        state == CameraConnection::State::Lost ? ConnectionBar::lossText(connection()) : QString());
    const bool wasControlled = std::exchange(m_isControlled, connection().isControlled());
    if (m_isControlled && !wasControlled)
        retryPicture();
    followPicture();
    showCounts();
}

/// The editor of the feature may be closed, or there was none.
void SetupWindow::showFailure(const QString &name, const QString &text)
{
    const CvxCPP::NodeInfo *const info = features().info(name);
    const QString title = info ? QString::fromStdString(info->displayName) : name;
    statusBar()->showMessage(tr("%1: %2").arg(title, text), reportTime);
}

/// Starts a stream that has failed once more, when the picture or the control of the camera is there again.
void SetupWindow::retryPicture()
{
    const bool isWanted = !m_pictureDock->isHidden() && connection().state() == CameraConnection::State::Open;
    if (isWanted && m_stream.state() == LiveStream::State::Failed)
        m_stream.start(pictureBuffers);
}

void SetupWindow::onPictureVisible(bool isVisible)
{
    if (isVisible)
        retryPicture();
    followPicture();
}

/// The stream runs while its picture can be seen.
void SetupWindow::followPicture()
{
    const bool isWanted = !m_pictureDock->isHidden() && connection().state() == CameraConnection::State::Open;
    if (isWanted && m_stream.state() == LiveStream::State::Stopped)
        m_stream.start(pictureBuffers);
    else if (m_pictureDock->isHidden())
        m_stream.stop();
}

void SetupWindow::showFeature(const QString &name)
{
    m_tabs->setCurrentWidget(m_tree);
    m_tree->showFeature(name);
}

void SetupWindow::showTable(const QString &name)
{
    m_table->setFeature(name);
    showDock(*m_tableDock);
}

void SetupWindow::showCompare()
{
    m_tabs->setCurrentWidget(m_compare);
}

void SetupWindow::showCounts()
{
    int count = 0;
    int changed = 0;
    for (const CvxCPP::NodeInfo &node : features().nodes()) {
        count += node.type != CvxCPP::NodeType::Category;
        changed += m_opening.isChanged(QString::fromStdString(node.name));
    }
    if (count == 0)
        m_counts->setText({});
    else if (m_opening.state() == OpeningSnapshot::State::Reading)
        m_counts->setText(tr("%n feature(s). The settings at opening are being read.", nullptr, count));
    else
        m_counts->setText(tr("%n feature(s)", nullptr, count) + QStringLiteral(" · ")
            + tr("%n changed since opening", nullptr, changed));
}

void SetupWindow::restoreOpening()
{
    m_settingsActions->restoreOpening();
}

void SetupWindow::closeEvent(QCloseEvent *event)
{
    m_tree->saveState(settings().values());
    ToolWindow::closeEvent(event);
}

void SetupWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void SetupWindow::dropEvent(QDropEvent *event)
{
    m_settingsActions->loadFile(droppedFile(*event->mimeData()));
}
