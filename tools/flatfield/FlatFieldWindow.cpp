#include "tools/flatfield/FlatFieldWindow.h"

#include "sdk/imagefile/Sidecar.h"
#include "tools/flatfield/FlatFieldPanel.h"
#include "tools/flatfield/FlatFieldReport.h"
#include "tools/kit/assistant/SentenceText.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/LivePicture.h"
#include "tools/kit/measure/flatfield/FlatFieldDocument.h"
#include "tools/kit/plot/Plot.h"
#include "tools/kit/start/ToolIcons.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

namespace {

constexpr double levelsPerSecond = 5;
constexpr QSize reportPlotSize(800, 300);

AssistantWindow::Plan flatFieldPlan(const QString &camera)
{
    return {{FlatFieldWindow::tr("Flat Field"), camera, QStringLiteral("flat-field")},
        {{{QStringLiteral("PixelFormat")},
            FlatFieldWindow::tr(
                "The camera does not say its pixel format (PixelFormat), so its values cannot "
                "be corrected.")}},
        {QStringLiteral("SceneTarget"), QStringLiteral("PixelFormat"), QStringLiteral("ExposureTime"),
            QStringLiteral("ExposureAuto"), QStringLiteral("Gain"), QStringLiteral("BlackLevel")}};
}

} // namespace

FlatFieldWindow::FlatFieldWindow(const QString &camera, ToolSettings &settings)
    : AssistantWindow(flatFieldPlan(camera), settings),
      m_session(std::make_shared<Session>()),
      m_panel(new FlatFieldPanel)
{
    m_levels = std::make_unique<LiveAnalysis>(
        [this](const std::shared_ptr<const CvxCPP::Image> &image) { return measureLevel(*image); },
        levelsPerSecond);
    setPanel(m_panel);
    createMenu();
    connect(m_panel, &FlatFieldPanel::darkRequested, this, &FlatFieldWindow::takeDark);
    connect(m_panel, &FlatFieldPanel::brightRequested, this, &FlatFieldWindow::takeBright);
    connect(m_panel, &FlatFieldPanel::saveRequested, this, &FlatFieldWindow::save);
    connect(m_panel, &FlatFieldPanel::previewToggled, this, &FlatFieldWindow::showCorrected);
    connect(this, &AssistantWindow::cameraChanged, this, &FlatFieldWindow::followCamera);
    connect(&job(), &MeasureJob::changed, this, &FlatFieldWindow::followJob);
    connect(&saver(), &ResultSaver::saved, m_panel,
        [this](const QString &path) { m_panel->showSaved(QFileInfo(path).fileName()); });
    stream().addSink(m_levels.get());
    finish();
    followCamera();
}

FlatFieldWindow::~FlatFieldWindow()
{
    stream().removeSink(m_levels.get());
    m_levels.reset();
    deleteWidgets();
}

void FlatFieldWindow::createMenu()
{
    m_save = resultMenu()->addAction(
        ToolIcons::icon(ToolIcons::Kind::Save), tr("&Save the correction…"), this, &FlatFieldWindow::save);
    m_save->setShortcut(QKeySequence::Save);
}

/// The thread of the analysis calls this function.
LiveAnalysis::Deliver FlatFieldWindow::measureLevel(const CvxCPP::Image &image)
{
    const std::optional<LiveLevel> level = measureLiveLevel(rawImage(image), m_levelConverter);
    return [this, level] { m_panel->showLevel(level); };
}

void FlatFieldWindow::followCamera()
{
    const QString id = connection().camera().id;
    if (id != m_cameraId) {
        m_cameraId = id;
        m_session = std::make_shared<Session>();
        m_panel->reset();
        m_levels->clear();
    }
    followJob();
}

/// The thread of the measurement changes the result, so nothing else uses it meanwhile.
void FlatFieldWindow::followJob()
{
    m_panel->setBusy(job().isRunning() || !canMeasure());
    m_save->setEnabled(!job().isRunning() && m_session->measurement.result());
}

void FlatFieldWindow::takeDark()
{
    m_session->measurement.setOptions(m_panel->options());
    const auto session = m_session;
    const auto work = [session](const MeasureContext &context, const CameraRecord &) {
        return session->measurement.takeDark(context);
    };
    job().start(tr("Taking the dark images"), MeasureJob::Changes::PutBack, work, this,
        [this](const QString &problem) { showDark(problem); });
}

void FlatFieldWindow::showDark(const QString &problem)
{
    if (!problem.isEmpty()) {
        if (!m_session->measurement.result()) // The images were taken, but the job failed at its end.
            m_panel->forgetResult();
        m_panel->showDarkProblem(problem);
        return;
    }
    QStringList texts;
    for (const Sentence &warning : m_session->measurement.darkWarnings())
        texts.append(translatedSentence(warning));
    m_panel->showDarkTaken(texts);
}

void FlatFieldWindow::takeBright()
{
    m_session->measurement.setOptions(m_panel->options());
    const auto session = m_session;
    const auto work = [session](const MeasureContext &context, const CameraRecord &camera) {
        session->camera = camera;
        return session->measurement.takeBright(context);
    };
    job().start(tr("Taking the bright images"), MeasureJob::Changes::PutBack, work, this,
        [this](const QString &problem) { showBright(problem); });
}

void FlatFieldWindow::showBright(const QString &problem)
{
    if (!problem.isEmpty()) {
        m_panel->showBrightProblem(problem);
        return;
    }
    // The first step shows the warnings about the dark images.
    m_panel->showResult(
        *m_session->measurement.result(), warnings().mid(int(m_session->measurement.darkWarnings().size())));
}

QStringList FlatFieldWindow::warnings() const
{
    QStringList texts;
    for (const Sentence &warning : m_session->measurement.result()->warnings)
        texts.append(translatedSentence(warning));
    return texts;
}

void FlatFieldWindow::showCorrected(bool isCorrected)
{
    DisplaySettings display;
    if (isCorrected && m_session->measurement.result())
        display.correction
            = std::make_shared<Correction>(std::nullopt, m_session->measurement.result()->built.field);
    canvas().setDisplaySettings(display);
}

void FlatFieldWindow::save()
{
    if (job().isRunning() || !m_session->measurement.result())
        return;
    const auto session = m_session;
    const FlatFieldResult &result = *session->measurement.result();
    FlatFieldPictures pictures;
    pictures.profiles = m_panel->plot().paper(reportPlotSize);
    if (const std::shared_ptr<const CvxCPP::Image> image = picture().feed().image()) {
        pictures.before = reportPicture(*image, nullptr);
        pictures.after = reportPicture(*image, &result.built.field);
    }
    const HtmlReport report = flatFieldReport(result, session->camera, pictures, warnings());
    const auto writeTiff = [session](const std::string &path) {
        return writeFlatFieldResult(path, *session->measurement.result(), session->camera);
    };
    const auto writeJson = [session](const std::string &path) {
        return writeSidecar(path, flatFieldDocument(*session->measurement.result(), session->camera));
    };
    const auto writeReport = [report](const std::string &path) { return report.write(path); };
    const CameraRecord &camera = session->camera;
    const std::string &name = camera.serialNumber.empty() ? camera.model : camera.serialNumber;
    saver().save(QStringLiteral("flat-field-%1").arg(QString::fromStdString(name)),
        {{QStringLiteral(".tif"), writeTiff}, {QStringLiteral(".json"), writeJson},
            {QStringLiteral(".html"), writeReport}});
}
