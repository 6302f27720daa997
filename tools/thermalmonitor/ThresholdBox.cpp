#include "tools/thermalmonitor/ThresholdBox.h"

#include "tools/kit/start/ToolSettings.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>

namespace {

const QString hysteresisKey = QStringLiteral("thresholds/hysteresis");

QString onKey(const QString &key)
{
    return key + QStringLiteral("On");
}

} // namespace

ThresholdBox::ThresholdBox(ToolSettings &settings, QWidget *parent) : QWidget(parent), m_settings(settings)
{
    auto *const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(1, 1);
    m_warning = addRow(layout, tr("&Warning at"), QStringLiteral("thresholds/warning"), 60);
    m_alarm = addRow(layout, tr("&Alarm at"), QStringLiteral("thresholds/alarm"), 70);
    m_hysteresis = new QDoubleSpinBox(this);
    m_hysteresis->setObjectName(QStringLiteral("hysteresis"));
    m_hysteresis->setDecimals(1);
    m_hysteresis->setRange(0, 20);
    m_hysteresis->setSuffix(tr(" K"));
    m_hysteresis->setToolTip(
        tr("A warning or an alarm ends when the temperature is so far below its threshold again."));
    m_hysteresis->setValue(settings.value(hysteresisKey, 1.0));
    auto *const label = new QLabel(tr("Ends &below by"), this);
    label->setBuddy(m_hysteresis);
    layout->addWidget(label, layout->rowCount(), 0);
    layout->addWidget(m_hysteresis, layout->rowCount() - 1, 1);
    connect(m_hysteresis, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &ThresholdBox::change);
}

ThresholdBox::Row ThresholdBox::addRow(
    QGridLayout *layout, const QString &text, const QString &key, double byDefault)
{
    constexpr double lowest = -50;
    constexpr double highest = 150;
    const Row row{new QCheckBox(text, this), new QDoubleSpinBox(this)};
    row.isOn->setObjectName(onKey(key));
    row.isOn->setToolTip(
        tr("The program notifies you, also while its window is behind others, when a place gets this warm."));
    row.value->setObjectName(key);
    row.value->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    row.value->setDecimals(1);
    row.value->setRange(lowest, highest);
    row.value->setSuffix(tr(" °C"));
    row.value->setValue(m_settings.value(key, byDefault));
    row.isOn->setChecked(m_settings.value(onKey(key), false));
    const int line = layout->rowCount();
    layout->addWidget(row.isOn, line, 0);
    layout->addWidget(row.value, line, 1);
    connect(row.isOn, &QCheckBox::toggled, this, &ThresholdBox::change);
    connect(row.value, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &ThresholdBox::change);
    return row;
}

Thresholds ThresholdBox::thresholds() const
{
    const auto valueOf = [](const Row &row) {
        return row.isOn->isChecked() ? std::optional(row.value->value()) : std::nullopt;
    };
    return {valueOf(m_warning), valueOf(m_alarm), m_hysteresis->value()};
}

void ThresholdBox::change()
{
    for (const Row &row : {m_warning, m_alarm}) {
        m_settings.setValue(row.value->objectName(), row.value->value());
        m_settings.setValue(row.isOn->objectName(), row.isOn->isChecked());
    }
    m_settings.setValue(hysteresisKey, m_hysteresis->value());
    emit changed();
}
