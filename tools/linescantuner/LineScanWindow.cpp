#include "tools/linescantuner/LineScanWindow.h"

#include "tools/kit/assistant/SentenceText.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/ComboBox.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/linescantuner/InputsForm.h"
#include "tools/linescantuner/PlanView.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

AssistantWindow::Plan windowPlan(const QString &camera)
{
    AssistantWindow::Plan plan;
    plan.setup = {LineScanWindow::tr("Line Scan Tuner"), camera, QStringLiteral("line-scan-tuner")};
    plan.needs = {{{QStringLiteral("AcquisitionLineRate"), QStringLiteral("AcquisitionLineRateAbs"),
                       QStringLiteral("LineRate"), QStringLiteral("EncoderDivider")},
        LineScanWindow::tr(
            "This camera takes whole pictures: it has no line rate (AcquisitionLineRate) and no "
            "encoder. Choose a line scan camera, which takes single lines of a moving object.")}};
    plan.settings = QStringList{QStringLiteral("ExposureTime"), QStringLiteral("Gain"),
        QStringLiteral("Width"), QStringLiteral("Height"), QStringLiteral("PixelFormat"),
        QStringLiteral("EncoderSpeed"), QStringLiteral("SceneTarget")};
    return plan;
}

QString inputsKey(const QString &cameraId)
{
    return QStringLiteral("inputs/") + QString::fromLatin1(cameraId.toUtf8().toHex());
}

} // namespace

LineScanWindow::LineScanWindow(const QString &camera, ToolSettings &settings)
    : AssistantWindow(windowPlan(camera), settings), m_session(connection(), features(), pauser())
{
    m_tracker = new TargetTracker(picture(), this);
    setPanel(createPanel());
    m_next = new QAction(tr("Do the &next step"), this);
    m_next->setShortcut(Qt::CTRL + Qt::Key_Return);
    resultMenu()->addAction(m_next);
    m_save = new QAction(ToolIcons::icon(ToolIcons::Kind::Save), tr("&Save the result…"), this);
    m_save->setShortcut(QKeySequence::Save);
    resultMenu()->addAction(m_save);
    connectParts();
    finish({{tr("Ctrl+Return"), tr("Do the next step")}, {tr("Ctrl+S"), tr("Save the result")}});
    followCamera();
    showSession();
}

LineScanWindow::~LineScanWindow()
{
    delete m_tracker; // Before the picture that it draws on.
    m_tracker = nullptr;
    deleteWidgets();
}

QWidget *LineScanWindow::createPanel()
{
    auto *const panel = new QWidget;
    auto *const layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    m_number = new BigNumber(tr("No round target was found yet."));
    layout->addWidget(m_number);
    layout->addWidget(createTargetRow());
    createSteps();
    layout->addWidget(m_steps);
    m_saveButton = new QPushButton(ToolIcons::icon(ToolIcons::Kind::Save), tr("Save the result…"));
    layout->addWidget(m_saveButton);
    return panel;
}

QWidget *LineScanWindow::createTargetRow()
{
    auto *const row = new QWidget;
    auto *const layout = new QFormLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_targetChoice = new QComboBox;
    m_targetChoice->addItems(
        {tr("the largest"), tr("the one that I click"), tr("in the columns that I draw")});
    m_targetChoice->setToolTip(
        tr("Which disc or ring is measured. The picture rolls, so only the columns count."));
    makeNarrow(m_targetChoice);
    layout->addRow(tr("&Target"), m_targetChoice);
    m_tracks = new QCheckBox(tr("Look for the target in the live picture"));
    m_tracks->setToolTip(tr("The picture stands still for a moment where a target was found."));
    m_tracks->setChecked(true);
    layout->addRow(m_tracks);
    return row;
}

void LineScanWindow::createSteps()
{
    m_steps = new StepList;
    m_describeStep = m_steps->addStep(tr("Describe the machine"),
        tr("Pixels are square if the camera takes one line while the object moves by one pixel."), QString());
    m_form = new InputsForm;
    m_describeStep->addWidget(m_form);
    m_applyStep = m_steps->addStep(tr("Set the camera"),
        tr("This follows from the machine and from the limits of the camera."), tr("Write the settings"));
    m_plan = new PlanView;
    m_applyStep->addWidget(m_plan);
    m_undo = new QPushButton(ToolIcons::icon(ToolIcons::Kind::Undo), tr("Undo what was written"));
    m_applyStep->addWidget(m_undo);
    m_measureStep = m_steps->addStep(tr("Measure a round target"),
        tr("Let a dark or bright disc or ring move under the camera. It must be complete in one picture."),
        tr("Measure"));
    m_correctStep = m_steps->addStep(tr("Make it round"), QString(), tr("Correct the rate"));
}

void LineScanWindow::connectParts()
{
    connect(this, &AssistantWindow::cameraChanged, this, &LineScanWindow::followCamera);
    connect(&job(), &MeasureJob::changed, this, &LineScanWindow::updateSteps);
    connect(m_form, &InputsForm::changed, this, &LineScanWindow::onInputsChanged);
    connect(
        m_targetChoice, qOverload<int>(&QComboBox::currentIndexChanged), this, &LineScanWindow::chooseTarget);
    connect(m_tracks, &QCheckBox::toggled, m_tracker, &TargetTracker::setOn);
    connect(&canvas(), &ImageCanvas::picked, this, &LineScanWindow::onPicked);
    connect(&canvas(), &ImageCanvas::regionChanged, this, &LineScanWindow::onRegionChanged);
    connect(m_tracker, &TargetTracker::searched, this, &LineScanWindow::showSearch);
    connect(&m_session, &TunerSession::changed, this, &LineScanWindow::showSession);
    connect(&m_session, &TunerSession::applied, this, &LineScanWindow::onApplied);
    connect(m_applyStep, &StepCard::triggered, this, &LineScanWindow::apply);
    connect(m_undo, &QPushButton::clicked, &m_session, &TunerSession::undo);
    connect(m_measureStep, &StepCard::triggered, this, &LineScanWindow::measure);
    connect(m_correctStep, &StepCard::triggered, this, &LineScanWindow::correct);
    connect(m_next, &QAction::triggered, this, &LineScanWindow::doNextStep);
    connect(m_save, &QAction::triggered, this, &LineScanWindow::save);
    connect(m_saveButton, &QPushButton::clicked, m_save, &QAction::trigger);
}

void LineScanWindow::followCamera()
{
    const QString id = connection().camera().id;
    if (id != m_cameraId) {
        m_cameraId = id;
        m_session.reset();
        m_steps->reset();
        m_tracker->clear();
        m_tracker->setColumns({});
        m_number->clear();
        m_measuresAfterApply = false;
        m_measureProblem.clear();
        restoreInputs();
    }
    if (canMeasure())
        m_session.readLater();
    updateSteps();
}

void LineScanWindow::rememberInputs()
{
    settings().setValue(inputsKey(m_cameraId), QString::fromStdString(toJson(m_form->inputs()).dump()));
}

void LineScanWindow::restoreInputs()
{
    const std::string text = settings().value(inputsKey(m_cameraId), QString()).toStdString();
    m_form->setInputs(lineScanInputs(nlohmann::ordered_json::parse(text, nullptr, false)));
    m_session.setInputs(m_form->inputs());
}

void LineScanWindow::onInputsChanged()
{
    rememberInputs();
    m_session.setInputs(m_form->inputs());
}

void LineScanWindow::chooseTarget(int choice)
{
    static constexpr ImageCanvas::Tool tools[]
        = {ImageCanvas::Tool::Pan, ImageCanvas::Tool::Pick, ImageCanvas::Tool::Region};
    canvas().setRegion({});
    canvas().setTool(tools[choice]);
    m_tracker->setColumns({});
}

void LineScanWindow::onPicked(const QPoint &pixel)
{
    m_tracker->setColumns({0, 0, pixel.x() + 0.5});
}

void LineScanWindow::onRegionChanged(const QRect &region)
{
    m_tracker->setColumns(region.isEmpty()
            ? TargetColumns()
            : TargetColumns{std::uint32_t(region.x()), std::uint32_t(region.width()), {}});
}

void LineScanWindow::showSearch(const TargetSearch &search)
{
    if (!search.target) {
        if (!search.problem.isEmpty())
            m_number->setCaption(translatedSentence(search.problem));
        return; // The target of an earlier picture stays.
    }
    const double error = (search.target->heightToWidth() - 1) * 100;
    const bool isRound = std::abs(error) < roundEnoughPercent;
    m_number->setValue(std::abs(error), 1, QStringLiteral("%"));
    m_number->setRole(isRound ? "good" : "warning");
    m_number->setCaption(isRound ? tr("The target in the live picture is round.")
            : error > 0          ? tr("The target in the live picture is too tall.")
                                 : tr("The target in the live picture is too flat."));
}

void LineScanWindow::showSession()
{
    const LineRatePlan &plan = m_session.result().plan;
    if (m_session.isRead())
        m_plan->showPlan(plan);
    else
        m_plan->clear();
    m_undo->setVisible(m_session.canUndo());
    showMeasurement();
    updateSteps();
}

void LineScanWindow::showMeasurement()
{
    const Roundness *const roundness = m_session.lastMeasurement();
    m_correctStep->setText(
        tr("The line rate, or the ratio of the encoder, is multiplied with width / height of the target."));
    if (!roundness) {
        m_measureStep->setResult(m_measureProblem, "error");
        m_correctStep->setResult({});
        return;
    }
    const bool isRound = std::abs(roundness->errorPercent()) < roundEnoughPercent;
    QString text = translatedSentence(m_session.measurementSentence());
    constexpr double smallTurn = 0.3; // Degrees.
    if (std::abs(roundness->turnDegrees) >= smallTurn)
        text += QLatin1Char(' ')
            + tr("The camera is turned by %1° against the movement.")
                  .arg(QLocale().toString(roundness->turnDegrees, 'f', 1));
    m_measureStep->setResult(text, isRound ? "good" : "warning");
}
