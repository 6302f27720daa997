#include "tools/linescantuner/PlanView.h"

#include "sdk/features/SettingLabel.h"
#include "tools/kit/assistant/SentenceText.h"
#include "tools/kit/widgets/Message.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QString number(double value, int decimals)
{
    return QLocale().toString(value, 'f', decimals);
}

QString rateText(double rate)
{
    return PlanView::tr("%1 kHz").arg(number(rate / 1e3, 3));
}

QString reasonOf(RateReason reason)
{
    switch (reason) {
    case RateReason::Link:
        return PlanView::tr("by the link");
    case RateReason::Exposure:
        return PlanView::tr("by the exposure");
    default:
        return PlanView::tr("by the camera");
    }
}

} // namespace

PlanView::PlanView(QWidget *parent)
    : QWidget(parent),
      m_values(new QFormLayout),
      m_warnings(createMessage()),
      m_settingsTitle(new QLabel),
      m_settings(new QTableWidget(0, 3))
{
    m_warnings->setObjectName(QStringLiteral("planWarnings"));
    m_settings->setHorizontalHeaderLabels({tr("Feature"), tr("New"), tr("Before")});
    m_settings->setAccessibleName(tr("Settings that are written"));
    m_settings->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_settings->setSelectionMode(QAbstractItemView::NoSelection);
    m_settings->setTabKeyNavigation(false);
    m_settings->verticalHeader()->hide();
    m_settings->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_settings->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_settings->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_settingsTitle->setWordWrap(true);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_values);
    layout->addWidget(m_warnings);
    layout->addWidget(m_settingsTitle);
    layout->addWidget(m_settings);
    clear();
}

void PlanView::clear()
{
    while (m_values->rowCount() > 0)
        m_values->removeRow(0);
    showMessage(m_warnings, {}, "warning");
    m_settingsTitle->hide();
    m_settings->hide();
}

QString PlanView::warnings() const
{
    return m_warnings->text();
}

void PlanView::showPlan(const LineRatePlan &plan)
{
    clear();
    QStringList warnings;
    if (!plan.isPossible())
        warnings.append(translatedSentence(plan.problem));
    for (const Sentence &warning : plan.warnings)
        if (const QString text = translatedSentence(warning); !warnings.contains(text))
            warnings.append(text);
    showMessage(m_warnings, warnings.join(QLatin1Char('\n')), plan.isPossible() ? "warning" : "error");
    if (plan.objectPixel <= 0)
        return;
    addValues(plan);
    addEncoderValues(plan);
    showSettings(plan.settings);
}

void PlanView::addValue(const QString &name, const QString &value)
{
    auto *const label = new QLabel(value);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    m_values->addRow(name, label);
}

void PlanView::addValues(const LineRatePlan &plan)
{
    addValue(tr("Pixel on the object"), tr("%1 µm").arg(number(plan.objectPixel, 2)));
    if (plan.wantedRate)
        addValue(tr("Line rate"), rateText(*plan.wantedRate));
    if (plan.limit.reason != RateReason::None)
        addValue(tr("Highest line rate"),
            tr("%1 (%2)").arg(rateText(plan.limit.rate), reasonOf(plan.limit.reason)));
    if (plan.highestSpeed)
        addValue(tr("Highest speed"), tr("%1 mm/s").arg(number(*plan.highestSpeed, 1)));
    if (plan.longestExposure)
        addValue(tr("Longest exposure"), tr("%1 µs").arg(number(*plan.longestExposure, 2)));
    if (plan.deadTime && *plan.deadTime > 0)
        addValue(tr("Dead time of a line"), tr("%1 µs").arg(number(*plan.deadTime, 2)));
}

void PlanView::addEncoderValues(const LineRatePlan &plan)
{
    if (plan.ratio) {
        const EncoderRatio &ratio = *plan.ratio;
        addValue(tr("Lines per pulse"), number(*plan.wantedRatio, 5));
        addValue(tr("Multiplier, divider"),
            tr("%1 / %2")
                .arg(ratio.countsPerPulse * ratio.multiplier)
                .arg(ratio.encoderDivider * ratio.triggerDivider));
    }
    addValue(tr("Remaining error"), tr("%1 %").arg(number(plan.errorPercent, 3)));
}

void PlanView::showSettings(const std::vector<PlannedSetting> &settings)
{
    m_settingsTitle->setText(settings.empty() ? tr("The camera is set up for this already.")
                                              : tr("These features are written, in this order:"));
    m_settingsTitle->show();
    m_settings->setVisible(!settings.empty());
    m_settings->setRowCount(static_cast<int>(settings.size()));
    int row = 0;
    for (const PlannedSetting &setting : settings) {
        const auto set = [this, row](int column, const std::string &text) {
            m_settings->setItem(row, column, new QTableWidgetItem(QString::fromStdString(text)));
        };
        set(0, setting.name);
        m_settings->item(row, 0)->setToolTip(
            QString::fromStdString(settingLabel(setting.name, setting.selectors)));
        set(1, plannedValueText(setting.value));
        set(2, plannedValueText(setting.before));
        ++row;
    }
    m_settings->resizeColumnToContents(1);
    m_settings->resizeColumnToContents(2);
    m_settings->resizeRowsToContents();
    int height = m_settings->horizontalHeader()->sizeHint().height() + 2 * m_settings->frameWidth();
    for (int i = 0; i < m_settings->rowCount(); ++i)
        height += m_settings->rowHeight(i);
    m_settings->setFixedHeight(height);
}
