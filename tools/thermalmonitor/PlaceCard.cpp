#include "tools/thermalmonitor/PlaceCard.h"

#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/Role.h"
#include "tools/thermalmonitor/ThermalTexts.h"

#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace {

QLabel *createLine(const char *name, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

const char *roleOf(AlertLevel level)
{
    constexpr const char *roles[] = {"", "warning", "error"};
    return roles[int(level)];
}

} // namespace

PlaceCard::PlaceCard(QWidget *parent)
    : QFrame(parent),
      m_value(new BigNumber({}, this)),
      m_state(createLine("state", this)),
      m_forecast(createLine("forecast", this))
{
    setProperty("role", QStringLiteral("card"));
    m_forecast->setProperty("role", QStringLiteral("secondary"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(2);
    layout->addWidget(m_value);
    layout->addWidget(m_state);
    layout->addWidget(m_forecast);
}

void PlaceCard::show(const PlaceMonitor &place)
{
    const PlaceReport &report = place.report();
    m_value->setCaption(ThermalTexts::place(place.place()));
    if (report.celsius)
        m_value->setValue(*report.celsius, 1, ThermalTexts::tr("°C"));
    else
        m_value->clear();
    m_value->setRole(roleOf(report.alert));
    m_state->setText(ThermalTexts::state(report));
    changeRole(m_state, report.state == ThermalState::Steady && report.celsius ? "good" : "");
    m_forecast->setText(ThermalTexts::forecast(report));
}
