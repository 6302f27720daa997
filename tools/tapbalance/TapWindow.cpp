#include "tools/tapbalance/TapWindow.h"

#include "sdk/imagefile/Sidecar.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/tapbalance/TapBars.h"
#include "tools/tapbalance/TapPanel.h"
#include "tools/tapbalance/TapReport.h"

#include <QAction>
#include <QDateTime>
#include <QMenu>

namespace {

constexpr QSize reportBars{900, 400};

const QString geometryName = QStringLiteral("DeviceTapGeometry");

} // namespace

TapWindow::TapWindow(const QString &camera, ToolSettings &settings)
    : AssistantWindow(plan(camera), settings), m_session(job()), m_panel(new TapPanel(m_session))
{
    setPanel(m_panel);
    addActions();
    canvas().addOverlay(&m_borders);
    features().watch({geometryName});
    connect(m_panel, &TapPanel::saveRequested, this, &TapWindow::save);
    connect(&m_session, &TapSession::changed, this, &TapWindow::showResult);
    connect(&job(), &MeasureJob::changed, this, &TapWindow::followCamera);
    connect(this, &AssistantWindow::cameraChanged, this, &TapWindow::followCamera);
    connect(&features(), &FeatureClient::nodesLoaded, this, &TapWindow::followGeometry);
    connect(&features(), &FeatureClient::stateChanged, this, [this](const QString &name) {
        if (name == geometryName)
            followGeometry();
    });
    finish();
    showResult();
}

TapWindow::~TapWindow()
{
    canvas().removeOverlay(&m_borders);
    deleteWidgets(); // They use the session.
}

AssistantWindow::Plan TapWindow::plan(const QString &camera)
{
    Plan plan;
    plan.setup = {tr("Tap Balance"), camera, QStringLiteral("tap-balance")};
    plan.needs.append({QStringList{QStringLiteral("GainSelector")},
        tr("The camera has no feature GainSelector, so the gains of its taps cannot be set one by one. Use a "
           "flat-field correction instead.")});
    plan.settings = QStringList{QStringLiteral("ExposureTime"), QStringLiteral("PixelFormat"),
        QStringLiteral("Gamma"), QStringLiteral("SceneTarget")};
    return plan;
}

void TapWindow::addActions()
{
    m_save = new QAction(ToolIcons::icon(ToolIcons::Kind::Save), tr("&Save the result…"), this);
    m_save->setShortcut(QKeySequence::Save);
    connect(m_save, &QAction::triggered, this, &TapWindow::save);
    m_undo = new QAction(ToolIcons::icon(ToolIcons::Kind::Undo), tr("&Undo the last balancing"), this);
    m_undo->setShortcut(QKeySequence::Undo);
    connect(m_undo, &QAction::triggered, &m_session, &TapSession::undo);
    resultMenu()->addAction(m_save);
    resultMenu()->addAction(m_undo);
}

void TapWindow::followCamera()
{
    const QString camera = connection().camera().id;
    if (camera != m_camera) {
        m_camera = camera;
        m_session.clear();
    }
    m_panel->setAllowed(canMeasure());
    m_panel->setBusy(job().isRunning());
    m_undo->setEnabled(m_session.canUndo() && canMeasure() && !job().isRunning());
}

void TapWindow::followGeometry()
{
    const CvxCPP::NodeState *const state = features().state(geometryName);
    const auto *const value = state ? std::get_if<std::string>(&state->value) : nullptr;
    if (value || !features().info(geometryName))
        m_panel->setGeometry(value ? QString::fromStdString(*value) : QString());
}

void TapWindow::showResult()
{
    m_borders.setResult(m_session.result());
    canvas().update();
    m_save->setEnabled(m_session.hasResult());
    followCamera();
}

QVector<ResultSaver::File> TapWindow::resultFiles()
{
    const TapResult result = m_session.result();
    const CameraRecord camera = m_session.camera();
    const HtmlReport report
        = TapReport::make(camera, result, m_panel->bars().paper(reportBars), canvas().grab().toImage());
    return {{QStringLiteral(".json"),
                [camera, result](
                    const std::string &path) { return writeSidecar(path, tapDocument(camera, result)); }},
        {QStringLiteral(".csv"), [result](const std::string &path) { return writeTapTable(path, result); }},
        {QStringLiteral(".html"), [report](const std::string &path) { return report.write(path); }}};
}

void TapWindow::save()
{
    if (!m_session.hasResult())
        return;
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    saver().save(QStringLiteral("taps-%1").arg(time), resultFiles());
}
