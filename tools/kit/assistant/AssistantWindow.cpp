#include "tools/kit/assistant/AssistantWindow.h"

#include "tools/kit/assistant/CameraSettings.h"
#include "tools/kit/assistant/MeasureBar.h"
#include "tools/kit/assistant/WheelGuard.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/LivePicture.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/VerticalScrollArea.h"
#include "tools/kit/window/ConnectionBar.h"
#include "tools/kit/window/ToolStarter.h"

#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int minPanelWidth = 340;
constexpr int panelWidth = 380; ///< At the first start.
constexpr int minPictureWidth = 320;
constexpr int reportTime = 8000; ///< Milliseconds.

const QString splitterKey = QStringLiteral("window/splitter");
const QString settingsOpenKey = QStringLiteral("window/cameraSettings");

QStringList featuresOf(const QVector<AssistantWindow::Need> &needs)
{
    QStringList names;
    for (const AssistantWindow::Need &need : needs)
        names.append(need.anyOf);
    return names;
}

} // namespace

AssistantWindow::AssistantWindow(const Plan &plan, ToolSettings &settings)
    : ToolWindow(plan.setup, settings),
      m_plan(plan),
      m_stream(connection()),
      m_pauser(m_stream),
      m_job(connection(), m_stream),
      m_saver(settings, this)
{
    features().watch(featuresOf(m_plan.needs));
    createContent();
    createActions();
    statusBar()->addPermanentWidget(new MeasureBar(m_job, this));
    connect(&connection(), &CameraConnection::stateChanged, this, &AssistantWindow::followConnection);
    connect(&m_stream, &LiveStream::stateChanged, this, &AssistantWindow::followStream);
    connect(&m_job, &MeasureJob::changed, this, &AssistantWindow::followJob);
    connect(&features(), &FeatureClient::nodesLoaded, this, &AssistantWindow::checkNeeds);
    connect(&features(), &FeatureClient::stateChanged, this, [this](const QString &name) {
        if (featuresOf(m_plan.needs).contains(name))
            checkNeeds();
    });
    connect(&m_saver, &ResultSaver::saved, this, [this](const QString &path) {
        statusBar()->showMessage(
            tr("The result was saved to \"%1\".").arg(QFileInfo(path).fileName()), reportTime);
    });
}

AssistantWindow::~AssistantWindow()
{
    deleteWidgets();
}

void AssistantWindow::createContent()
{
    m_picture = new LivePicture(m_stream, features());
    m_picture->setMinimumWidth(minPictureWidth);
    m_picture->setStoppedHint(tr("Press F5 to see the live picture."));
    m_missing = createMessage();
    m_missing->setObjectName(QStringLiteral("missingFeature"));
    m_cameraSettings = new CameraSettings(m_plan.settings, features(), m_pauser);

    auto *const content = new QWidget;
    content->setObjectName(QStringLiteral("assistantPanel"));
    m_panelLayout = new QVBoxLayout(content);
    m_panelLayout->setContentsMargins(12, 10, 12, 10);
    m_panelLayout->setSpacing(10);
    m_panelLayout->addWidget(m_missing);
    m_panelLayout->addWidget(m_cameraSettings);
    m_panelLayout->addStretch();
    auto *const scrollArea = new VerticalScrollArea;
    scrollArea->setObjectName(QStringLiteral("assistantScrollArea"));
    scrollArea->setMinimumWidth(minPanelWidth);
    scrollArea->setWidget(content);

    m_splitter = new QSplitter;
    m_splitter->addWidget(m_picture);
    m_splitter->addWidget(scrollArea);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setChildrenCollapsible(false);
    setContent(m_splitter);
}

void AssistantWindow::createActions()
{
    m_resultMenu = menuBar()->addMenu(tr("&Result"));
    m_live = new QAction(ToolIcons::icon(ToolIcons::Kind::Play), tr("&Live picture"), this);
    m_live->setCheckable(true);
    m_live->setShortcut(Qt::Key_F5);
    connect(m_live, &QAction::triggered, this, &AssistantWindow::setLive);
}

void AssistantWindow::setPanel(QWidget *panel)
{
    m_panel = panel;
    new WheelGuard(panel);
    m_panelLayout->insertWidget(m_panelLayout->indexOf(m_cameraSettings), panel);
}

void AssistantWindow::finish(const ShortcutPage::Rows &otherKeys)
{
    m_resultMenu->addSeparator();
    addQuitEntry(m_resultMenu);
    QMenu *const camera = menuBar()->addMenu(tr("&Camera"));
    camera->addAction(m_live);
    camera->addAction(tr("Open in the &Image Viewer"), this,
        [this] { showProblem(ToolStarter::start(QStringLiteral("ImageViewer"), connection().camera().id)); });
    addCameraEntries(camera);
    ShortcutPage::Rows keys{{tr("Esc"), tr("Cancel the measurement")}};
    addHelpMenu(keys + otherKeys);
    m_cameraSettings->setOpen(settings().value(settingsOpenKey, true));
    restoreLayout();
    if (!m_splitter->restoreState(settings().value(splitterKey, QByteArray())))
        m_splitter->setSizes({width() - panelWidth, panelWidth});
    followConnection();
    followStream();
}

bool AssistantWindow::canMeasure() const
{
    return m_hasNeeds && connection().isControlled();
}

ImageCanvas &AssistantWindow::canvas()
{
    return m_picture->canvas();
}

void AssistantWindow::followConnection()
{
    const CameraConnection::State state = connection().state();
    if (state == CameraConnection::State::Opening) {
        m_picture->clear();
        m_hasNeeds = false;
        m_startsWhenOpen = true;
        showMessage(m_missing, {}, "warning");
    }
    m_picture->setNotice(
        state == CameraConnection::State::Lost ? ConnectionBar::lossText(connection()) : QString());
    if (state == CameraConnection::State::Open && std::exchange(m_startsWhenOpen, false))
        m_stream.start(MeasureJob::streamBuffers);
    followStream();
    emit cameraChanged();
}

void AssistantWindow::followStream()
{
    const LiveStream::State state = m_stream.state();
    m_live->setChecked(state == LiveStream::State::Running || state == LiveStream::State::Starting);
    m_live->setEnabled(connection().state() == CameraConnection::State::Open && !m_job.isRunning());
}

/// The measurement sees the pictures and the settings, so nobody else changes them meanwhile.
void AssistantWindow::followJob()
{
    m_cameraSettings->setEnabled(!m_job.isRunning());
    followStream();
}

void AssistantWindow::setLive(bool isLive)
{
    if (isLive)
        m_stream.start(MeasureJob::streamBuffers);
    else
        m_stream.stop();
}

void AssistantWindow::checkNeeds()
{
    QStringList sentences;
    for (const Need &need : m_plan.needs) {
        if (features().firstKnown(need.anyOf).isEmpty())
            sentences.append(need.sentence);
    }
    m_hasNeeds = sentences.isEmpty();
    showMessage(m_missing, sentences.join(QLatin1Char('\n')), "warning");
    if (m_panel)
        m_panel->setEnabled(m_hasNeeds);
    emit cameraChanged();
}

void AssistantWindow::closeEvent(QCloseEvent *event)
{
    m_job.cancel();
    settings().setValue(splitterKey, m_splitter->saveState());
    settings().setValue(settingsOpenKey, m_cameraSettings->isOpen());
    ToolWindow::closeEvent(event);
}
