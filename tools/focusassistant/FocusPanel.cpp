#include "tools/focusassistant/FocusPanel.h"

#include "tools/focusassistant/FocusTexts.h"
#include "tools/kit/assistant/SentenceText.h"
#include "tools/kit/measure/focus/FocusText.h"
#include "tools/kit/plot/Plot.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/Heading.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/Role.h"

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
      m_share(createText("bigNumber", this)),
      m_sharpness(createText("sharpness", this)),
      m_problem(createMessage(this)),
      m_advice(createText("advice", this)),
      m_corners(createText("corners", this)),
      m_plot(new Plot(this)),
      m_grid(new QSpinBox(this)),
      m_pointStep(createText("pointStep", this)),
      m_turnStep(createText("turnStep", this)),
      m_tiltStep(createText("tiltStep", this)),
      m_failure(createMessage(this)),
      m_search(new QPushButton(tr("Search &automatically"), this)),
      m_tilt(new QPushButton(tr("Read the &tilt"), this)),
      m_result(createText("result", this)),
      m_save(new QPushButton(tr("&Save the result…"), this))
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(createHeading(tr("Sharpness")));
    layout->addWidget(createNumbers());
    layout->addWidget(m_plot);
    layout->addWidget(createControls());
    layout->addWidget(createHeading(tr("Steps")));
    layout->addWidget(createSteps());
    layout->addWidget(m_failure);
    layout->addWidget(createResult());
    m_session.setGridSize(m_grid->value());
    connect(&m_session, &FocusSession::changed, this, &FocusPanel::show);
    m_failure->setObjectName(QStringLiteral("failure"));
    showFailure({});
    showResult(nullptr);
}

QWidget *FocusPanel::createNumbers()
{
    auto *const numbers = new QWidget(this);
    m_problem->setObjectName(QStringLiteral("problem"));
    m_share->setAccessibleName(tr("Share of the peak"));
    changeRole(m_sharpness, "secondary");
    changeRole(m_corners, "secondary");
    auto *const layout = new QVBoxLayout(numbers);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (QWidget *const widget : {m_share, m_sharpness, m_advice, m_corners, m_problem})
        layout->addWidget(widget);
    m_plot->setFixedHeight(plotHeight);
    m_plot->setHorizontalAxis(Plot::Axis::Duration, tr("Before now"));
    m_plot->setVerticalAxis(tr("Sharpness"));
    m_plot->addCurve(tr("Sharpness"));
    m_plot->setAccessibleName(tr("Sharpness during the last minute"));
    return numbers;
}

QWidget *FocusPanel::createControls()
{
    auto *const controls = new QWidget(this);
    m_grid->setObjectName(QStringLiteral("grid"));
    m_grid->setRange(FocusGrid::min, FocusGrid::max);
    m_grid->setValue(m_settings.value(gridKey, usualGrid));
    auto *const label = new QLabel(tr("&Regions per direction"), controls);
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

QWidget *FocusPanel::createSteps()
{
    auto *const steps = new QWidget(this);
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setToolTip(tr("Moves the lens through its range and leaves it at the best position. Cancelling "
                            "puts it back."));
    m_tilt->setObjectName(QStringLiteral("tilt"));
    m_tilt->setToolTip(
        tr("Finds out in which order the regions became sharp while the lens was turned once through "
           "the sharpest position."));
    m_pointStep->setText(tr("1. Point the camera at something with edges all over the picture."));
    m_tiltStep->setText(tr("3. Read the tilt."));
    auto *const layout = new QVBoxLayout(steps);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *const widget : {static_cast<QWidget *>(m_pointStep), static_cast<QWidget *>(m_turnStep),
             static_cast<QWidget *>(m_search), static_cast<QWidget *>(m_tiltStep),
             static_cast<QWidget *>(m_tilt)})
        layout->addWidget(widget);
    connect(m_search, &QPushButton::clicked, this, &FocusPanel::searchRequested);
    connect(m_tilt, &QPushButton::clicked, this, &FocusPanel::tiltRequested);
    return steps;
}

QWidget *FocusPanel::createResult()
{
    auto *const result = new QWidget(this);
    m_save->setObjectName(QStringLiteral("save"));
    auto *const layout = new QVBoxLayout(result);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_result);
    layout->addWidget(m_save);
    connect(m_save, &QPushButton::clicked, this, &FocusPanel::saveRequested);
    return result;
}

void FocusPanel::showResult(const FocusResult *result)
{
    m_shown = result;
    m_hasResult = result && result->analysis;
    m_result->setVisible(m_hasResult);
    show();
}

QStringList FocusPanel::sentences() const
{
    return m_hasResult ? resultSentences(*m_shown, m_session.position()) : QStringList();
}

void FocusPanel::showFailure(const QString &text)
{
    showMessage(m_failure, text, "warning");
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
    showTrend();
    showSteps();
    m_result->setText(sentences().join(QLatin1Char('\n')));
}

void FocusPanel::showNumbers()
{
    const FocusHistory &history = m_session.history();
    const bool hasPeak = history.peak() > 0;
    m_share->setText(hasPeak ? FocusTexts::share(history.share()) : QString(QChar(0x2013)));
    changeRole(m_share, hasPeak ? shareRole(history.share()) : "secondary");
    m_sharpness->setText(hasPeak ? tr("of the peak. Sharpness %1, peak %2.")
                                       .arg(QLocale().toString(history.samples().back().measurement.sharpness,
                                                'f', sharpnessDecimals),
                                           QLocale().toString(history.peak(), 'f', sharpnessDecimals))
                                 : tr("Nothing was measured yet."));
    const bool hasAdvice = m_session.problem().isEmpty() && !m_isSearching;
    m_advice->setText(hasAdvice ? translatedSentence(adviceSentence(history.advice())) : QString());
    changeRole(m_advice, history.advice() == FocusHistory::Advice::Done ? "good" : "");

    QStringList corners;
    if (hasPeak) {
        const FocusGrid &grid = history.samples().back().measurement.grid;
        std::size_t index = 0;
        for (const GridCorner &corner : gridCorners(grid)) {
            const auto share = history.regionShare(corner.region);
            corners.append(tr("%1: %2").arg(FocusTexts::corner(grid, index++),
                share ? FocusTexts::share(*share) : QString(QChar(0x2013))));
        }
    }
    m_corners->setText(corners.join(QStringLiteral(" · ")));
}

void FocusPanel::showTrend()
{
    QVector<QPointF> samples;
    const FocusHistory &history = m_session.history();
    const double now = history.samples().empty() ? 0 : history.samples().back().position;
    for (const FocusSample &sample : history.samples())
        if (sample.position >= now - FocusHistory::trendSeconds)
            samples.append({sample.position - now, sample.measurement.sharpness});
    m_plot->setSamples(0, samples);
    if (history.peak() > 0)
        m_plot->setLimit(0, history.peak(), tr("Peak"));
    else
        m_plot->removeLines();
}

void FocusPanel::showSteps()
{
    const FocusHistory &history = m_session.history();
    const bool hasEdges = m_session.problem().isEmpty() && history.peak() > 0;
    const bool hasTurned = history.hasPassedPeak();
    const bool hasMotor = m_session.hasMotor();
    m_turnStep->setText(hasMotor
            ? tr("2. Search the best position, or turn the lens slowly through the sharpest position.")
            : tr("2. Turn the lens slowly through the sharpest position, then back to it."));
    changeRole(m_pointStep, hasEdges ? "stepDone" : "stepCurrent");
    changeRole(m_turnStep, hasTurned || m_hasResult ? "stepDone" : hasEdges ? "stepCurrent" : "stepPending");
    changeRole(m_tiltStep, m_hasResult ? "stepDone" : hasTurned ? "stepCurrent" : "stepPending");
    m_search->setVisible(hasMotor);
    m_search->setEnabled(m_canSearch && hasEdges && !m_isSearching);
    m_tilt->setEnabled(hasTurned && !m_isSearching);
    const bool searchIsNext = hasMotor && !m_hasResult;
    changeRole(m_search, searchIsNext ? "primary" : "");
    changeRole(m_tilt, !searchIsNext && !m_hasResult ? "primary" : "");
    m_save->setEnabled(history.peak() > 0 && !m_isSearching);
    changeRole(m_save, m_hasResult ? "primary" : "");
}
