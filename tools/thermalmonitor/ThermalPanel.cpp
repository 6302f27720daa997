#include "tools/thermalmonitor/ThermalPanel.h"

#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/Heading.h"
#include "tools/kit/widgets/Message.h"
#include "tools/thermalmonitor/DarkBox.h"
#include "tools/thermalmonitor/LogBox.h"
#include "tools/thermalmonitor/PlaceCard.h"
#include "tools/thermalmonitor/TemperaturePlot.h"
#include "tools/thermalmonitor/ThermalSession.h"
#include "tools/thermalmonitor/ThresholdBox.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace {

const QString intervalKey = QStringLiteral("interval");

} // namespace

ThermalPanel::ThermalPanel(ThermalSession &session, ToolSettings &settings, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_settings(settings),
      m_alert(createMessage(this)),
      m_problem(createMessage(this)),
      m_cardLayout(new QVBoxLayout),
      m_plot(new TemperaturePlot(this)),
      m_interval(new QDoubleSpinBox(this)),
      m_thresholds(new ThresholdBox(settings, this)),
      m_log(new LogBox(session, settings, this)),
      m_dark(new DarkBox(session, this)),
      m_save(new QPushButton(tr("&Save the result…"), this))
{
    m_alert->setObjectName(QStringLiteral("alert"));
    m_problem->setObjectName(QStringLiteral("problem"));
    m_save->setObjectName(QStringLiteral("save"));
    m_save->setProperty("role", QStringLiteral("primary"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_alert);
    layout->addWidget(m_problem);
    layout->addLayout(m_cardLayout);
    layout->addWidget(m_plot);
    layout->addWidget(createControls());
    layout->addWidget(createHeading(tr("Notify me")));
    layout->addWidget(m_thresholds);
    layout->addWidget(createHeading(tr("Log")));
    layout->addWidget(m_log);
    layout->addWidget(createHeading(tr("Dark level")));
    layout->addWidget(m_dark);
    layout->addWidget(m_save);
    connect(m_save, &QPushButton::clicked, this, &ThermalPanel::saveRequested);
    connect(&m_session, &ThermalSession::changed, this, &ThermalPanel::show);
    connect(m_thresholds, &ThresholdBox::changed, this,
        [this] { m_session.setThresholds(m_thresholds->thresholds()); });
    m_session.setThresholds(m_thresholds->thresholds());
    show();
}

QWidget *ThermalPanel::createControls()
{
    auto *const controls = new QWidget(this);
    m_interval->setObjectName(QStringLiteral("interval"));
    m_interval->setDecimals(1);
    m_interval->setRange(ThermalSession::shortestInterval, ThermalSession::longestInterval);
    m_interval->setSuffix(tr(" s"));
    m_interval->setValue(m_settings.value(intervalKey, 1.0));
    m_session.setInterval(m_interval->value());
    auto *const label = new QLabel(tr("Read &every"), controls);
    label->setBuddy(m_interval);
    auto *const restart = new QPushButton(tr("Start a&new"), controls);
    restart->setObjectName(QStringLiteral("restart"));
    restart->setToolTip(tr("Forgets the readings and begins again. A running log goes on."));
    auto *const layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_interval);
    layout->addStretch();
    layout->addWidget(restart);
    connect(m_interval, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double seconds) {
        m_settings.setValue(intervalKey, seconds);
        m_session.setInterval(seconds);
    });
    connect(restart, &QPushButton::clicked, this, [this] {
        showAlert({}, "good");
        m_session.restart();
    });
    return controls;
}

void ThermalPanel::showAlert(const QString &text, const char *role)
{
    showMessage(m_alert, text, role);
}

void ThermalPanel::show()
{
    const ThermalMonitor *const monitor = m_session.monitor();
    showMessage(m_problem, m_session.problem(), "warning");
    m_save->setEnabled(monitor != nullptr);
    showCards();
    if (monitor) {
        m_plot->show(*monitor, m_thresholds->thresholds());
        return;
    }
    m_plot->clear();
    showAlert({}, "good"); // It was that of another camera.
}

void ThermalPanel::showCards()
{
    const ThermalMonitor *const monitor = m_session.monitor();
    const int count = monitor ? int(monitor->places().size()) : 0;
    while (m_cards.size() > count)
        delete m_cards.takeLast();
    while (m_cards.size() < count) {
        m_cards.append(new PlaceCard(this));
        m_cardLayout->addWidget(m_cards.last());
    }
    for (int index = 0; index < count; ++index)
        m_cards[index]->show(monitor->places()[std::size_t(index)]);
}
