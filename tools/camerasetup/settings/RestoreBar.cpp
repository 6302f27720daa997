#include "tools/camerasetup/settings/RestoreBar.h"

#include "tools/kit/camera/CameraConnection.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

using ConnectionState = CameraConnection::State;

RestoreBar::RestoreBar(CameraConnection &connection, OpeningSnapshot &opening, QWidget *parent)
    : QFrame(parent),
      m_connection(connection),
      m_opening(opening),
      m_text(new QLabel(this)),
      m_compare(new QPushButton(tr("C&ompare"), this)),
      m_restore(new QPushButton(tr("Res&tore"), this))
{
    setObjectName(QStringLiteral("restoreBar"));
    setProperty("role", QStringLiteral("card"));
    setProperty("severity", QStringLiteral("warning"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_compare->setObjectName(QStringLiteral("compare"));
    m_compare->setToolTip(tr("Shows which settings differ from those when the camera was opened."));
    m_restore->setObjectName(QStringLiteral("restore"));
    auto *const dismiss = new QPushButton(tr("&Dismiss"), this);
    dismiss->setObjectName(QStringLiteral("dismiss"));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 6);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_compare);
    layout->addWidget(m_restore);
    layout->addWidget(dismiss);
    connect(m_compare, &QPushButton::clicked, this, &RestoreBar::compareRequested);
    connect(m_restore, &QPushButton::clicked, this, &RestoreBar::restoreRequested);
    connect(dismiss, &QPushButton::clicked, this, &QWidget::hide);
    connect(&connection, &CameraConnection::stateChanged, this, &RestoreBar::followConnection);
    connect(&opening, &OpeningSnapshot::stateChanged, this, &RestoreBar::followOpening);
    hide();
}

void RestoreBar::followConnection()
{
    const ConnectionState state = m_connection.state();
    const bool isBack = state == ConnectionState::Open && m_wasLost;
    m_wasLost = state == ConnectionState::Lost;
    if (isBack)
        m_text->setText(tr("%1 Settings that were not made with this program may have the values from "
                           "power-on.")
                            .arg(m_connection.reason()));
    if (isBack || state != ConnectionState::Open)
        setVisible(isBack);
    followOpening();
}

void RestoreBar::followOpening()
{
    const bool isComplete = m_opening.state() == OpeningSnapshot::State::Complete;
    const bool isControlled = m_connection.isControlled();
    m_compare->setEnabled(isComplete);
    m_restore->setEnabled(isComplete && isControlled);
    m_restore->setToolTip(!isControlled ? tr("The camera is only watched, so nothing can be changed.")
            : !isComplete
            ? tr("The settings were not read completely before the camera was lost.")
            : tr("Shows what would change, and then sets everything as it was when the camera was opened."));
}
