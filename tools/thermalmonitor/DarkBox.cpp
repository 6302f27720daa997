#include "tools/thermalmonitor/DarkBox.h"

#include "tools/kit/widgets/Message.h"
#include "tools/thermalmonitor/ThermalSession.h"
#include "tools/thermalmonitor/ThermalTexts.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

DarkBox::DarkBox(ThermalSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_button(new QPushButton(this)),
      m_instruction(new QLabel(this)),
      m_result(new QLabel(this)),
      m_message(createMessage(this))
{
    m_button->setObjectName(QStringLiteral("darkButton"));
    m_instruction->setText(
        tr("Cover the lens, and choose a long exposure and a pixel format with many bits in the "
           "camera settings. Then measure while the camera warms up."));
    m_result->setObjectName(QStringLiteral("darkResult"));
    m_message->setObjectName(QStringLiteral("darkMessage"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QLabel *const label : {m_instruction, m_result}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_instruction->setProperty("role", QStringLiteral("secondary"));
    layout->addWidget(m_instruction);
    layout->addWidget(m_button);
    layout->addWidget(m_message);
    layout->addWidget(m_result);
    connect(m_button, &QPushButton::clicked, this,
        [this] { m_session.setMeasuringDark(!m_session.isMeasuringDark()); });
    connect(&m_session, &ThermalSession::changed, this, &DarkBox::show);
    show();
}

void DarkBox::show()
{
    const bool isMeasuring = m_session.isMeasuringDark();
    const ThermalMonitor *const monitor = m_session.monitor();
    m_button->setText(isMeasuring ? tr("Stop measuring the &dark level") : tr("Measure the &dark level"));
    m_button->setEnabled(monitor != nullptr);
    m_instruction->setVisible(!isMeasuring);
    const QString result = monitor ? ThermalTexts::dark(monitor->dark()) : QString();
    m_result->setText(result);
    m_result->setVisible(!result.isEmpty());
    showMessage(m_message, m_session.darkMessage(), "warning");
}
