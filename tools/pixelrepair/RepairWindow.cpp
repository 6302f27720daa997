#include "tools/pixelrepair/RepairWindow.h"

#include "sdk/image/Correction.h"
#include "sdk/imagefile/DefectMapFile.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/LivePicture.h"
#include "tools/kit/measure/defects/DefectJson.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/pixelrepair/DefectTexts.h"
#include "tools/pixelrepair/RepairPanel.h"
#include "tools/pixelrepair/RepairReport.h"
#include "tools/pixelrepair/ResultBox.h"

#include <QAction>
#include <QLocale>
#include <QMenu>

namespace {
constexpr double selectedScale = 8; // Scale at which a pixel that was chosen in the list is shown.
}

RepairWindow::RepairWindow(const QString &camera, ToolSettings &settings)
    : AssistantWindow(plan(camera), settings),
      m_panel(new RepairPanel(settings)),
      m_save(new QAction(ToolIcons::icon(ToolIcons::Kind::Save), tr("&Save the map…"), this))
{
    setPanel(m_panel);
    m_overlay.emplace(canvas());
    m_save->setShortcut(QKeySequence::Save);
    m_save->setEnabled(false);
    resultMenu()->addAction(m_save);
    connect(m_save, &QAction::triggered, this, &RepairWindow::save);
    connect(m_panel, &RepairPanel::darkRequested, this, &RepairWindow::takeDarkImages);
    connect(m_panel, &RepairPanel::brightRequested, this, &RepairWindow::takeBrightImages);
    connect(m_panel, &RepairPanel::saveRequested, this, &RepairWindow::save);
    ResultBox &box = m_panel->result();
    connect(&box, &ResultBox::thresholdChanged, this, &RepairWindow::applyThreshold);
    connect(
        &box, &ResultBox::marksToggled, this, [this](bool isVisible) { m_overlay->setVisible(isVisible); });
    connect(&box, &ResultBox::repairToggled, this, &RepairWindow::applyRepair);
    connect(&box, &ResultBox::selected, this, &RepairWindow::showPixel);
    connect(&picture().feed(), &PictureFeed::pictureSizeChanged, this, &RepairWindow::applyRepair,
        Qt::QueuedConnection); // When there is a picture of the new size.
    connect(&saver(), &ResultSaver::saved, this,
        [this] { m_panel->steps().setCurrent(m_panel->steps().count()); });
    connect(this, &AssistantWindow::cameraChanged, this, &RepairWindow::followCamera);
    connect(&job(), &MeasureJob::changed, this, &RepairWindow::followJob);
    finish();
}

RepairWindow::~RepairWindow()
{
    m_overlay.reset(); // Uses the canvas.
    deleteWidgets();
}

AssistantWindow::Plan RepairWindow::plan(const QString &camera)
{
    Plan plan;
    plan.setup = {tr("Pixel Repair"), camera, QStringLiteral("pixel-repair")};
    plan.settings = QStringList{QStringLiteral("SceneTarget"), QStringLiteral("ExposureTime"),
        QStringLiteral("Gain"), QStringLiteral("BlackLevel"), QStringLiteral("PixelFormat"),
        QStringLiteral("AcquisitionFrameRate")};
    return plan;
}

void RepairWindow::takeDarkImages()
{
    const auto dark = std::make_shared<DefectImages>();
    const std::size_t images = m_panel->images();
    m_panel->step(RepairPanel::DarkStep).setResult({});
    job().start(
        tr("Taking the dark images"), MeasureJob::Changes::PutBack,
        [dark, images](const MeasureContext &context, const CameraRecord &) {
            return ::takeDarkImages(context, images, *dark);
        },
        this, [this, dark](const QString &problem) { finishDark(dark, problem); });
}

void RepairWindow::finishDark(const std::shared_ptr<DefectImages> &dark, const QString &problem)
{
    StepCard &step = m_panel->step(RepairPanel::DarkStep);
    if (!problem.isEmpty()) {
        step.setResult(problem, "warning");
        return;
    }
    m_dark = dark;
    forgetResult(); // Not before: a cancelled measurement leaves the earlier result.
    m_panel->steps().setCurrent(RepairPanel::BrightStep);
    m_panel->step(RepairPanel::BrightStep).setResult({});
    step.setResult(tr("%n dark image(s) taken.", nullptr, int(dark->statistics.images())));
}

void RepairWindow::takeBrightImages()
{
    if (!m_dark)
        return;
    const auto result = std::make_shared<DefectResult>();
    result->dark = m_dark;
    const std::size_t images = m_panel->images();
    m_panel->step(RepairPanel::BrightStep).setResult({});
    job().start(
        tr("Taking the bright images"), MeasureJob::Changes::PutBack,
        [result, images](const MeasureContext &context, const CameraRecord &camera) {
            const auto bright = std::make_shared<DefectImages>();
            result->camera = camera;
            result->bright = bright;
            Sentence problem = ::takeBrightImages(context, images, *result->dark, *bright);
            return problem.isEmpty()
                ? examinePixels(*result->dark, *bright, context.progress, result->findings)
                : problem;
        },
        this, [this, result](const QString &problem) { finishBright(result, problem); });
}

void RepairWindow::finishBright(const std::shared_ptr<DefectResult> &result, const QString &problem)
{
    StepCard &step = m_panel->step(RepairPanel::BrightStep);
    if (!problem.isEmpty()) {
        step.setResult(problem, "warning");
        return;
    }
    forgetResult();
    m_result = std::move(*result);
    m_panel->steps().setCurrent(RepairPanel::SaveStep);
    m_result->setThreshold(usualThreshold);
    showResult();
    QString text = DefectTexts::summary(m_result->counts);
    for (const std::string &name : m_result->dark->cameraCorrections)
        text += QLatin1Char(' ')
            + tr("%1 was off during the measurement, so the map also contains what the camera itself can "
                 "repair.")
                  .arg(QString::fromStdString(name));
    step.setResult(text);
}

void RepairWindow::forgetResult()
{
    m_result.reset();
    m_panel->result().clear();
    m_save->setEnabled(false);
    m_overlay->setMap({});
    m_overlay->setSelected({});
    applyRepair();
}

void RepairWindow::applyThreshold(double threshold)
{
    if (!m_result || m_result->threshold == threshold)
        return;
    m_result->setThreshold(threshold);
    showResult();
}

void RepairWindow::showResult()
{
    m_panel->result().show(*m_result);
    m_overlay->setMap(m_result->map);
    m_save->setEnabled(true);
    followJob();
    applyRepair();
}

void RepairWindow::applyRepair()
{
    ResultBox &box = m_panel->result();
    DisplaySettings display;
    QString problem;
    if (m_result && box.isRepaired()) {
        display.correction = std::make_shared<const Correction>(m_result->map, std::nullopt);
        problem = repairProblem(*display.correction);
    }
    canvas().setDisplaySettings(display);
    box.setRepairProblem(problem.isEmpty() ? problem : tr("The picture is not repaired: %1.").arg(problem));
}

QString RepairWindow::repairProblem(const Correction &correction)
{
    const std::shared_ptr<const CvxCPP::Image> image = canvas().picture().image;
    if (!image)
        return {};
    const CvxCPP::ImageInfo &info = image->GetInfo();
    const std::string problem
        = correction.problem(info.pixelFormat, info.offsetX, info.offsetY, info.width, info.height);
    return QString::fromStdString(problem);
}

void RepairWindow::showPixel(const QPoint &sensorPixel)
{
    m_overlay->setSelected(sensorPixel);
    if (const std::optional<QPoint> pixel = m_overlay->inPicture(sensorPixel))
        canvas().showPixel(*pixel, selectedScale);
}

/// Images and result belong to one camera; they stay while it is lost and comes back.
void RepairWindow::followCamera()
{
    const QString id = connection().camera().id;
    if (id != m_cameraId) {
        m_cameraId = id;
        m_dark.reset();
        forgetResult();
        m_panel->steps().reset();
    }
    followJob();
}

void RepairWindow::followJob()
{
    const bool isReady = canMeasure() && !job().isRunning();
    m_panel->step(RepairPanel::DarkStep).setButtonAllowed(isReady);
    m_panel->step(RepairPanel::BrightStep).setButtonAllowed(isReady);
    m_panel->step(RepairPanel::SaveStep).setButtonAllowed(m_result && !job().isRunning());
    m_save->setEnabled(m_result && !job().isRunning());
}

QVector<ResultSaver::File> RepairWindow::resultFiles() const
{
    const auto result = std::make_shared<const DefectResult>(*m_result);
    return {{QStringLiteral(".json"),
                [result](const std::string &path) {
                    return writeDefectMapJson(path, result->map, result->camera,
                        {{"measurement",
                            toJson(*result->dark, *result->bright, result->findings, result->threshold)}});
                }},
        {QStringLiteral(".csv"),
            [result](const std::string &path) { return writeDefectMapCsv(path, result->map); }},
        {QStringLiteral(".html"),
            [result](const std::string &path) { return RepairReport::write(path, *result); }}};
}

void RepairWindow::save()
{
    if (!m_result)
        return;
    const QString camera = QString::fromStdString(
        m_result->camera.serialNumber.empty() ? m_result->camera.model : m_result->camera.serialNumber);
    saver().save(QStringLiteral("defects-%1").arg(camera), resultFiles());
}
