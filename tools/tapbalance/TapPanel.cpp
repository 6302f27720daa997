#include "tools/tapbalance/TapPanel.h"

#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/tapbalance/LayoutBox.h"
#include "tools/tapbalance/TapBars.h"
#include "tools/tapbalance/TapSession.h"
#include "tools/tapbalance/TapTexts.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString meansText(const TapMeasurement &measurement)
{
    QString rows;
    for (std::size_t i = 0; i < measurement.taps.size(); ++i) {
        const TapMeasurement::Tap &tap = measurement.taps[i];
        rows += QStringLiteral("<tr><td>%1</td><td align=right>%2</td><td align=right>%3</td></tr>")
                    .arg(QLocale().toString(qulonglong(i + 1)), QLocale().toString(tap.mean, 'f', 1),
                        QLocale().toString(tap.noise, 'f', 2));
    }
    return QStringLiteral(
        "<table cellpadding=3 width='100%'><tr><th align=left>%1</th><th align=right>%2</th>"
        "<th align=right>%3</th></tr>%4</table>")
        .arg(TapPanel::tr("Tap"), TapPanel::tr("Mean"), TapPanel::tr("Noise"), rows);
}

} // namespace

TapPanel::TapPanel(TapSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_mismatch(new BigNumber(tr("Mismatch of the taps"))),
      m_bars(new TapBars),
      m_table(new QLabel),
      m_layout(new LayoutBox),
      m_steps(new StepList),
      m_skip(new QPushButton(tr("Skip this step"))),
      m_undo(new QPushButton(tr("Undo the last balancing")))
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_mismatch);
    layout->addWidget(m_bars);
    layout->addWidget(m_steps);
    layout->addWidget(m_table);
    m_table->setObjectName(QStringLiteral("tapTable"));
    m_table->setAccessibleName(tr("Mean and noise of each tap"));
    m_table->setToolTip(
        tr("Shading changes the means, so the steps at the borders say how the taps differ."));
    addSteps();
    connect(m_layout, &LayoutBox::changed, this, [this] { m_session.setOptions(m_layout->options()); });
    connect(&m_session, &TapSession::changed, this, &TapPanel::showResult);
    connect(&m_session, &TapSession::failed, this, &TapPanel::showProblem);
    connect(m_undo, &QPushButton::clicked, &m_session, &TapSession::undo);
    connect(m_skip, &QPushButton::clicked, this, [this] { m_steps->setCurrent(GainStep); });
    m_session.setOptions(m_layout->options());
    showResult();
}

void TapPanel::addSteps()
{
    StepCard *const measure = m_steps->addStep(tr("Measure"),
        tr("Show an even, bright surface that fills the picture, for example a white sheet out of focus."),
        tr("Measure the taps"));
    measure->addWidget(m_layout);
    StepCard *const black = m_steps->addStep(tr("Black levels"),
        tr("Cover the lens. Without this step, differences of the black levels count as those of the gains."),
        tr("Balance the black levels"));
    black->addWidget(m_skip);
    m_steps->addStep(tr("Gains"), tr("Uncover the lens and show the even, bright surface again."),
        tr("Balance the gains"));
    StepCard *const keep = m_steps->addStep(tr("Keep the values"),
        tr("The camera has the new values until it is switched off. Store them in a user set with Camera "
           "Setup "
           "to keep them."),
        tr("Save the result…"));
    keep->addWidget(m_undo);
    for (int step = MeasureStep; step <= KeepStep; ++step)
        connect(m_steps->step(step), &StepCard::triggered, this, [this, step] { run(step); });
}

void TapPanel::run(int step)
{
    if (step == KeepStep) {
        emit saveRequested();
        return;
    }
    m_running = step;
    m_steps->step(step)->setResult({});
    if (step == MeasureStep)
        m_session.measure();
    else
        m_session.balance(step == GainStep ? TapSetting::Gain : TapSetting::BlackLevel);
}

void TapPanel::setGeometry(const QString &geometry)
{
    m_layout->setGeometry(geometry);
}

void TapPanel::setAllowed(bool isAllowed)
{
    m_isAllowed = isAllowed;
    updateButtons();
}

void TapPanel::setBusy(bool isBusy)
{
    m_isBusy = isBusy;
    updateButtons();
}

void TapPanel::updateButtons()
{
    m_steps->setBusy(m_isBusy || !m_isAllowed);
    m_layout->setEnabled(!m_isBusy);
    m_skip->setEnabled(!m_isBusy && m_session.hasResult());
    m_undo->setEnabled(!m_isBusy && m_isAllowed && m_session.canUndo());
}

void TapPanel::showResult()
{
    const TapResult &result = m_session.result();
    const auto &measurement = result.bright ? result.bright : result.dark;
    m_table->setVisible(measurement.has_value());
    if (!measurement) {
        m_mismatch->clear();
        m_bars->setBars({}, {});
        m_steps->reset();
        updateButtons();
        return;
    }
    constexpr double goodMismatch = 0.5; // Percent.
    const double mismatch = TapTexts::shown(*measurement, measurement->mismatch);
    m_mismatch->setValue(mismatch, 2, TapTexts::unit(*measurement));
    m_mismatch->setRole(measurement->isDark || mismatch < goodMismatch ? "good" : "warning");
    const auto &balance = measurement->isDark ? result.blackLevel : result.gain;
    QVector<TapBars::Bar> bars;
    for (std::size_t i = 0; i < measurement->taps.size(); ++i) {
        const double now = TapTexts::shown(*measurement, measurement->taps[i].deviation);
        bars.append(
            {now, balance ? TapTexts::shown(*measurement, balance->before.taps.at(i).deviation) : now});
    }
    m_bars->setBars(bars, TapTexts::unit(*measurement));
    m_table->setText(meansText(*measurement));
    m_steps->step(MeasureStep)
        ->setResult(
            tr("The taps differ by up to %1.").arg(TapTexts::deviation(*measurement, measurement->mismatch)));
    m_steps->step(BlackLevelStep)
        ->setResult(result.blackLevel ? TapTexts::balanced(*result.blackLevel) : QString());
    m_steps->step(GainStep)->setResult(result.gain ? TapTexts::balanced(*result.gain) : QString());
    m_steps->setCurrent(result.gain ? KeepStep : result.blackLevel ? GainStep : BlackLevelStep);
    updateButtons();
}

void TapPanel::showProblem(const QString &problem)
{
    m_steps->step(m_running)->setResult(problem, "error");
    updateButtons();
}
