#include "tools/linescantuner/LineScanWindow.h"

#include "sdk/imagefile/Sidecar.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/linescantuner/InputsForm.h"
#include "tools/linescantuner/LineScanReport.h"

#include <QAction>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

// What the steps of the window do.

int LineScanWindow::nextStep() const
{
    const LineScanResult &result = m_session.result();
    if (!m_session.isRead() || !problemOf(result.inputs).isEmpty())
        return 0;
    if (!result.plan.isPossible() || !result.plan.settings.empty())
        return 1;
    const Roundness *const roundness = m_session.lastMeasurement();
    if (!roundness)
        return 2;
    return std::abs(roundness->errorPercent()) < roundEnoughPercent ? 4 : 3;
}

void LineScanWindow::updateSteps()
{
    const bool isBusy = job().isRunning() || m_session.isBusy();
    const int before = m_steps->current();
    m_steps->setCurrent(nextStep());
    if (before > 0 && m_steps->current() != before) // A person who enters numbers goes on doing that.
        QTimer::singleShot(0, this, [this] { showStep(m_steps->current()); });
    m_steps->setBusy(isBusy || !canMeasure());
    m_applyStep->setButtonAllowed(
        m_session.result().plan.isPossible() && !m_session.result().plan.settings.empty());
    m_correctStep->setButtonAllowed(m_session.lastMeasurement() != nullptr);
    m_form->setEnabled(!isBusy);
    m_undo->setEnabled(!isBusy && canMeasure());
    const bool canSave = !isBusy && (m_session.isMeasured() || m_session.result().plan.objectPixel > 0);
    m_save->setEnabled(canSave);
    m_saveButton->setEnabled(canSave);
}

/// Scrolls the panel so that the step is visible, or the last one if all are done.
void LineScanWindow::showStep(int index)
{
    auto *const area = findChild<QScrollArea *>(QStringLiteral("assistantScrollArea"));
    if (area)
        area->ensureWidgetVisible(m_steps->step(std::min(index, m_steps->count() - 1)));
}

void LineScanWindow::doNextStep()
{
    const int current = m_steps->current();
    QPushButton *const button = current < m_steps->count() ? m_steps->step(current)->button() : nullptr;
    if (button)
        button->click();
}

void LineScanWindow::apply()
{
    m_measureProblem.clear();
    m_session.forgetMeasurements(); // They were made with other settings.
    m_session.apply();
}

void LineScanWindow::onApplied(const QString &problem)
{
    const bool measures = std::exchange(m_measuresAfterApply, false);
    m_applyStep->setResult(problem.isEmpty() ? tr("The camera has accepted the settings.") : problem,
        problem.isEmpty() ? "good" : "error");
    if (problem.isEmpty() && measures)
        measure();
}

void LineScanWindow::measure()
{
    RoundnessOptions options;
    options.columns = m_tracker->columns();
    const auto roundness = std::make_shared<Roundness>();
    const auto camera = std::make_shared<LineScanCamera>();
    const auto work = [=](const MeasureContext &context, const CameraRecord &) {
        const CvxCPP::CvxResult read = readLineScanCamera(context.device, *camera);
        return read ? measureRoundness(context, *camera, options, *roundness) : untranslated(read.text);
    };
    job().start(tr("Measuring the target"), MeasureJob::Changes::PutBack, work, this,
        [this, roundness, camera](const QString &problem) {
            m_measureProblem = problem;
            if (problem.isEmpty())
                return m_session.addMeasurement(*roundness, *camera);
            m_measureStep->setResult(problem, "error");
        });
}

void LineScanWindow::correct()
{
    const Roundness *const roundness = m_session.lastMeasurement();
    if (!roundness)
        return;
    const auto inputs = correctedInputs(m_session.result().inputs, m_session.camera(), *roundness);
    if (!inputs)
        return;
    m_form->setInputs(*inputs);
    onInputsChanged();
    if (m_session.result().plan.settings.empty())
        return measure();
    m_measuresAfterApply = true;
    m_session.apply();
}

/// The camera is read once more for its settings; one that is lost is described by what is known.
void LineScanWindow::save()
{
    const auto record = std::make_shared<CameraRecord>();
    const auto camera = connection().camera().camera;
    connection().run(
        [record, camera](CvxCPP::Device &device) {
            *record = readCameraRecord(*camera, device);
            return CvxCPP::CvxResult{};
        },
        this, [this, record](const CvxCPP::CvxResult &) { saveWith(*record); });
}

void LineScanWindow::saveWith(const CameraRecord &record)
{
    const LineScanResult result = m_session.result();
    const QImage image = canvas().grab().toImage();
    saver().save(QStringLiteral("line-scan-") + QString::fromStdString(record.serialNumber),
        {{QStringLiteral(".json"),
             [result, record](
                 const std::string &path) { return writeSidecar(path, resultJson(result, record)); }},
            {QStringLiteral(".csv"),
                [result](const std::string &path) { return writeLineScanCsv(path, result); }},
            {QStringLiteral(".html"), [result, record, image](const std::string &path) {
                 return lineScanReport(result, record, image).write(path);
             }}});
}
