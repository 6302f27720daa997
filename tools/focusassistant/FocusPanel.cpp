#include "tools/focusassistant/FocusPanel.h"

#include "tools/focusassistant/FocusTexts.h"
#include "tools/kit/assistant/SentenceText.h"
#include "tools/kit/measure/focus/FocusText.h"
#include "tools/kit/plot/Plot.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/Heading.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/Role.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

const QString gridKey = QStringLiteral("grid");
constexpr int usualGrid = 5;
constexpr int sharpnessDecimals = 4;
constexpr int plotHeight = 170;
constexpr double goodShare = 0.95;
constexpr double poorShare = 0.7;

QLabel *createText(const char *name, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

/// Returns how sharp the corners are at the best position, or when the whole picture was sharpest.
QString cornersAtBest(const FocusResult &result)
{
    QStringList corners;
    std::size_t index = 0;
    for (const GridCorner &corner : gridCorners(result.last.grid)) {
        const QString name = FocusTexts::corner(result.last.grid, index++);
        if (corner.region < result.analysis->regions.size() && result.analysis->regions[corner.region].peak)
            corners.append(FocusTexts::cornerShare(
                name, FocusTexts::share(result.analysis->regions[corner.region].shareAtBest)));
    }
    return corners.isEmpty() ? QString() : FocusTexts::atBest(corners.join(QStringLiteral(", ")));
}

QStringList resultSentences(const FocusResult &result, const std::optional<double> &position)
{
    const FocusAnalysis &analysis = *result.analysis;
    const SurfaceUnit unit{!result.axis, result.axis ? 1 : 2};
    QStringList lines;
    if (result.axis && analysis.best)
        lines.append(translatedSentence(bestPositionSentence(
            *analysis.best, position.value_or(result.position.value_or(*analysis.best)), *result.axis)));
    if (!analysis.surface)
        lines.append(translatedSentence(noTiltSentence()));
    else
        lines.append(translatedSentence(tiltSentence(*analysis.surface, unit)));
    if (analysis.surface && analysis.surface->curvature != 0)
        lines.append(translatedSentence(curvatureSentence(*analysis.surface, unit)));
    if (const QString corners = cornersAtBest(result); !corners.isEmpty())
        lines.append(corners);
    return lines;
}

const char *shareRole(double share)
{
    if (share >= goodShare)
        return "good";
    return share >= poorShare ? "warning" : "error";
}

} // namespace

FocusPanel::FocusPanel(FocusSession &session, ToolSettings &settings, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_settings(settings),
      m_share(new BigNumber(tr("Share of the peak"), this)),
      m_problem(createMessage(this)),
      m_advice(createText("advice", this)),
      m_corners(createText("corners", this)),
      m_movement(createText("movement", this)),
      m_plot(new Plot(this)),
      m_grid(new QSpinBox(this)),
      m_steps(new StepList(this)),
      m_save(new QPushButton(tr("&Save the result…"), this))
{
    m_problem->setObjectName(QStringLiteral("problem"));
    m_save->setObjectName(QStringLiteral("save"));
    changeRole(m_corners, "secondary");
    changeRole(m_movement, "secondary");
    m_movement->setText(translatedSentence(movementSentence()));
    createPlot();
    createSteps();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(createHeading(tr("Sharpness")));
    for (QWidget *const widget : {static_cast<QWidget *>(m_share), static_cast<QWidget *>(m_advice),
             static_cast<QWidget *>(m_corners), static_cast<QWidget *>(m_movement),
             static_cast<QWidget *>(m_problem), static_cast<QWidget *>(m_plot), createControls(),
             static_cast<QWidget *>(m_steps), static_cast<QWidget *>(m_save)})
        layout->addWidget(widget);
    m_session.setGridSize(m_grid->value());
    connect(&m_session, &FocusSession::changed, this, &FocusPanel::show);
    connect(m_save, &QPushButton::clicked, this, &FocusPanel::saveRequested);
    show();
}

void FocusPanel::createPlot()
{
    m_plot->setFixedHeight(plotHeight);
    m_plot->setHorizontalAxis(Plot::Axis::Duration, tr("Time before now"));
    m_plot->setVerticalAxis(tr("Sharpness"));
    m_plot->setAxisScale(QwtPlot::xBottom, -FocusHistory::trendSeconds, 0);
    m_plot->addCurve(tr("Sharpness"));
    m_plot->setAccessibleName(tr("Sharpness during the last minute"));
}

QWidget *FocusPanel::createControls()
{
    auto *const controls = new QWidget(this);
    m_grid->setObjectName(QStringLiteral("grid"));
    m_grid->setRange(FocusGrid::min, FocusGrid::max);
    m_grid->setValue(m_settings.value(gridKey, usualGrid));
    auto *const label = new QLabel(tr("Re&gions per direction"), controls);
    label->setBuddy(m_grid);
    auto *const forget = new QPushButton(tr("&Forget the peaks"), controls);
    forget->setObjectName(QStringLiteral("forget"));
    forget->setToolTip(tr("Begins again, for example because the camera looks at something else."));
    auto *const layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_grid);
    layout->addStretch();
    layout->addWidget(forget);
    connect(m_grid, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int size) {
        m_settings.setValue(gridKey, size);
        m_session.setGridSize(size);
    });
    connect(forget, &QPushButton::clicked, this, &FocusPanel::forgetRequested);
    return controls;
}

void FocusPanel::createSteps()
{
    m_steps->addStep(
        tr("Point the camera"), tr("It looks at something with edges all over the picture."), {});
    StepCard *const turn = m_steps->addStep(tr("Find the best focus"), {}, tr("Search &automatically"));
    StepCard *const tilt = m_steps->addStep(tr("Read the tilt"),
        tr("The order in which the regions become sharp says how the focus is tilted."),
        tr("Read the &tilt"));
    turn->button()->setObjectName(QStringLiteral("search"));
    turn->button()->setToolTip(
        tr("Moves the lens through its range and leaves it at the best position. Cancelling puts it back."));
    tilt->button()->setObjectName(QStringLiteral("tilt"));
    connect(turn, &StepCard::triggered, this, &FocusPanel::searchRequested);
    connect(tilt, &StepCard::triggered, this, &FocusPanel::tiltRequested);
}

void FocusPanel::showResult(const FocusResult *result)
{
    m_shown = result;
    m_hasResult = result && result->analysis;
    show();
}

QStringList FocusPanel::sentences() const
{
    return m_hasResult ? resultSentences(*m_shown, m_session.position()) : QStringList();
}

void FocusPanel::showFailure(const QString &text)
{
    m_steps->step(TurnStep)->setResult(text, "warning");
}

void FocusPanel::setSteps(bool canSearch, bool isSearching)
{
    m_canSearch = canSearch;
    m_isSearching = isSearching;
    show();
}

void FocusPanel::show()
{
    showMessage(m_problem, translatedSentence(m_session.problem()), "warning");
    showNumbers();
    showCorners();
    showTrend();
    showSteps();
}

void FocusPanel::showNumbers()
{
    const FocusHistory &history = m_session.history();
    const bool hasAdvice = m_session.problem().isEmpty() && !m_isSearching;
    m_advice->setText(hasAdvice ? translatedSentence(adviceSentence(history.advice())) : QString());
    m_advice->setVisible(!m_advice->text().isEmpty());
    changeRole(m_advice, history.advice() == FocusHistory::Advice::Done ? "good" : "");
    if (history.peak() <= 0) {
        m_share->clear();
        m_share->setCaption(tr("Nothing was measured yet."));
        return;
    }
    m_share->setValue(100 * history.share(), 0, tr("%"));
    m_share->setRole(shareRole(history.share()));
    const double sharpness = history.samples().back().measurement.sharpness;
    m_share->setCaption(tr("of the peak. Sharpness %1, peak %2.")
                            .arg(QLocale().toString(sharpness, 'f', sharpnessDecimals),
                                QLocale().toString(history.peak(), 'f', sharpnessDecimals)));
}

void FocusPanel::showCorners()
{
    const FocusHistory &history = m_session.history();
    QStringList corners;
    if (history.peak() > 0) {
        const FocusGrid &grid = history.samples().back().measurement.grid;
        std::size_t index = 0;
        for (const GridCorner &corner : gridCorners(grid)) {
            const auto share = history.regionShare(corner.region);
            corners.append(FocusTexts::cornerShare(FocusTexts::corner(grid, index++),
                share ? FocusTexts::share(*share) : QString(QChar(0x2013))));
        }
    }
    m_corners->setText(corners.join(QStringLiteral(" · ")));
    m_corners->setVisible(!corners.isEmpty());
    m_movement->setVisible(history.isMoving() && !m_isSearching);
}

void FocusPanel::showTrend()
{
    constexpr double headroom = 1.1; // Above the peak.
    QVector<QPointF> samples;
    const FocusHistory &history = m_session.history();
    const double now = history.samples().empty() ? 0 : history.samples().back().position;
    for (const FocusSample &sample : history.samples())
        if (sample.position >= now - FocusHistory::trendSeconds)
            samples.append({sample.position - now, sample.measurement.sharpness});
    if (history.peak() > 0) {
        m_plot->setAxisScale(QwtPlot::yLeft, 0, headroom * history.peak());
        m_plot->setLimit(0, history.peak(), tr("Peak"));
    } else {
        m_plot->removeLines();
    }
    m_plot->setSamples(0, samples);
}

FocusPanel::Step FocusPanel::currentStep() const
{
    const FocusHistory &history = m_session.history();
    if (m_hasResult)
        return AllDone;
    if (!m_session.problem().isEmpty() || history.peak() <= 0)
        return PointStep;
    return history.hasPassedPeak() && !m_isSearching ? TiltStep : TurnStep;
}

void FocusPanel::showSteps()
{
    const Step step = currentStep();
    if (m_steps->current() != step)
        m_steps->setCurrent(step);
    const bool hasMotor = m_session.hasMotor();
    const FocusHistory &history = m_session.history();
    const bool isMeasured = m_session.problem().isEmpty() && history.peak() > 0;
    StepCard *const turn = m_steps->step(TurnStep);
    turn->setText(hasMotor
            ? tr("Search the best position, or turn the lens slowly through the sharpest position.")
            : tr("Turn the lens slowly through the sharpest position, then back to it."));
    turn->button()->setVisible(hasMotor);
    turn->setButtonAllowed(m_canSearch && isMeasured && !m_isSearching);
    StepCard *const tilt = m_steps->step(TiltStep);
    tilt->setButtonAllowed(history.hasPassedPeak() && !m_isSearching);
    tilt->setResult(sentences().join(QLatin1Char('\n')), "good");
    m_save->setEnabled(history.peak() > 0 && !m_isSearching);
    changeRole(m_save, m_hasResult ? "primary" : "");
}
