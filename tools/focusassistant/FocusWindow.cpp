#include "tools/focusassistant/FocusWindow.h"

#include "sdk/imagefile/Sidecar.h"
#include "tools/focusassistant/FocusPanel.h"
#include "tools/focusassistant/FocusReport.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/measure/focus/FocusSweep.h"
#include "tools/kit/plot/Plot.h"
#include "tools/kit/start/ToolIcons.h"

#include <QAction>
#include <QDateTime>
#include <QMenu>

namespace {

constexpr QSize reportPlot{1200, 400};

} // namespace

struct FocusWindow::Search
{
    SweepOptions options;
    SweepResult result;
};

FocusWindow::FocusWindow(const QString &camera, ToolSettings &settings)
    : AssistantWindow(plan(camera), settings),
      m_session(features(), stream()),
      m_overlay(m_session),
      m_panel(new FocusPanel(m_session, settings)),
      m_save(new QAction(ToolIcons::icon(ToolIcons::Kind::Save), tr("&Save the result…"), this))
{
    setPanel(m_panel);
    canvas().addOverlay(&m_overlay);
    m_save->setShortcut(QKeySequence::Save);
    resultMenu()->addAction(m_save);
    connect(m_save, &QAction::triggered, this, &FocusWindow::save);
    connect(m_panel, &FocusPanel::saveRequested, this, &FocusWindow::save);
    connect(m_panel, &FocusPanel::searchRequested, this, &FocusWindow::search);
    connect(m_panel, &FocusPanel::tiltRequested, this, &FocusWindow::readTilt);
    connect(m_panel, &FocusPanel::forgetRequested, this, &FocusWindow::forget);
    connect(&m_session, &FocusSession::changed, &canvas(), QOverload<>::of(&QWidget::update));
    connect(&m_session, &FocusSession::changed, this,
        [this] { m_save->setEnabled(m_session.history().peak() > 0); });
    connect(this, &AssistantWindow::cameraChanged, this, &FocusWindow::followCamera);
    connect(&job(), &MeasureJob::changed, this, &FocusWindow::followJob);
    m_save->setEnabled(false);
    finish();
}

FocusWindow::~FocusWindow()
{
    canvas().removeOverlay(&m_overlay);
    deleteWidgets(); // They use the session.
}

AssistantWindow::Plan FocusWindow::plan(const QString &camera)
{
    Plan plan;
    plan.setup = {tr("Focus Assistant"), camera, QStringLiteral("focus-assistant")};
    plan.settings = QStringList{QStringLiteral("ExposureTime"), QStringLiteral("Gain"),
        QStringLiteral("BlackLevel"), QStringLiteral("PixelFormat"), QStringLiteral("SceneTarget")};
    for (const std::string &name : focusFeatureNames())
        plan.settings.append(QString::fromStdString(name));
    return plan;
}

void FocusWindow::followCamera()
{
    if (const QString id = connection().camera().id; id != m_cameraId) {
        m_cameraId = id;
        m_session.reset();
        setResult(std::nullopt);
    }
    followJob();
}

void FocusWindow::followJob()
{
    m_panel->setSteps(canMeasure(), job().isRunning());
}

void FocusWindow::search()
{
    const auto search = std::make_shared<Search>();
    search->options.focus = m_session.options();
    const auto work = [search](const MeasureContext &context, const CameraRecord &) {
        return sweepFocus(context, search->options, search->result);
    };
    forget(); // The peaks of the search are those of all regions.
    job().start(tr("Searching the best focus"), MeasureJob::Changes::Keep, work, this,
        [this, search](const QString &problem) { takeSearch(problem, *search); });
}

void FocusWindow::takeSearch(const QString &problem, const Search &search)
{
    followJob();
    m_panel->showFailure(problem);
    if (problem.isEmpty())
        setResult(focusResult(search.result));
}

void FocusWindow::readTilt()
{
    FocusResult result = presentResult();
    const std::vector<FocusSample> turn = m_session.history().lastTurn();
    result.samples = turn;
    result.analysis = analyseFocus(turn);
    setResult(result);
}

void FocusWindow::forget()
{
    m_session.clear();
    setResult(std::nullopt);
}

void FocusWindow::setResult(const std::optional<FocusResult> &result)
{
    m_panel->showFailure({});
    m_panel->showResult(nullptr);
    m_result = result;
    m_panel->showResult(m_result ? &*m_result : nullptr);
}

FocusResult FocusWindow::presentResult() const
{
    const FocusHistory &history = m_session.history();
    FocusResult result;
    result.last = history.samples().back().measurement;
    result.peak = history.peak();
    for (std::size_t i = 0; i < result.last.regions.size(); ++i)
        result.regionShares.push_back(history.regionShare(i));
    result.position = m_session.position();
    result.samples.assign(history.samples().begin(), history.samples().end());
    return result;
}

QVector<ResultSaver::File> FocusWindow::resultFiles(const CameraRecord &camera)
{
    const auto result = std::make_shared<FocusResult>(m_result ? *m_result : presentResult());
    const auto json = std::make_shared<nlohmann::ordered_json>(resultJson(*result, camera));
    const FocusReport::Pictures pictures{canvas().grab().toImage(), m_panel->plot().paper(reportPlot)};
    const auto report
        = std::make_shared<HtmlReport>(FocusReport::report(*result, camera, m_panel->sentences(), pictures));
    return {{QStringLiteral(".json"), [json](const std::string &path) { return writeSidecar(path, *json); }},
        {QStringLiteral(".csv"), [result](const std::string &path) { return writeFocusCsv(path, *result); }},
        {QStringLiteral(".html"), [report](const std::string &path) { return report->write(path); }}};
}

/// The camera is read once more for its settings; one that is lost is described by what is known.
void FocusWindow::save()
{
    if (m_session.history().peak() <= 0)
        return;
    const auto record = std::make_shared<CameraRecord>();
    const auto camera = connection().camera().camera;
    const auto write = [this, record](const CvxCPP::CvxResult &) {
        const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
        if (m_session.history().peak() > 0)
            saver().save(QStringLiteral("focus-%1").arg(time), resultFiles(*record));
    };
    connection().run(
        [record, camera](CvxCPP::Device &device) {
            *record = readCameraRecord(*camera, device);
            return CvxCPP::CvxResult{};
        },
        this, write);
}
