#include "tools/kit/window/ConnectionBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVariant>

using State = CameraConnection::State;

ConnectionBar::ConnectionBar(CameraConnection &connection, QWidget *parent)
    : QFrame(parent),
      m_connection(connection),
      m_text(new QLabel(this)),
      m_watch(new QPushButton(tr("&Watch only"), this)),
      m_control(new QPushButton(this)),
      m_other(new QPushButton(tr("&Other camera…"), this))
{
    setObjectName(QStringLiteral("connectionBar"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_watch->setToolTip(tr("Shows the settings of the camera and how they change, and its pictures if it "
                           "sends them to more than one program. Nothing is changed."));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 6);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_watch);
    layout->addWidget(m_control);
    layout->addWidget(m_other);
    connect(m_watch, &QPushButton::clicked, this, &ConnectionBar::watchRequested);
    connect(m_control, &QPushButton::clicked, this, &ConnectionBar::controlRequested);
    connect(m_other, &QPushButton::clicked, this, &ConnectionBar::otherCameraRequested);
    connect(&connection, &CameraConnection::stateChanged, this, &ConnectionBar::update);
    update();
}

QString ConnectionBar::lossText(const CameraConnection &connection)
{
    return tr("%1 The camera was lost at %2. The program continues by itself when the camera is back.")
        .arg(connection.reason(), connection.since().time().toString(QStringLiteral("HH:mm:ss")));
}

void ConnectionBar::setShowsLoss(bool showsLoss)
{
    m_showsLoss = showsLoss;
    update();
}

void ConnectionBar::update()
{
    const State state = m_connection.state();
    const bool isWatching = state == State::Open && m_connection.access() == CvxCPP::CvxAccessWatch;
    const QString name = m_connection.camera().title();
    const QString reason = m_connection.reason();
    if (state == State::InUse)
        m_text->setText(reason); // Names the camera, and who uses it if the camera tells.
    else if (state == State::Failed)
        m_text->setText(tr("%1 cannot be opened. %2").arg(name, reason));
    else if (state == State::Lost)
        m_text->setText(lossText(m_connection));
    else if (isWatching)
        m_text->setText(tr("Watching %1: its settings are shown as another program changes them.").arg(name));
    m_watch->setVisible(state == State::InUse);
    m_control->setText(isWatching ? tr("&Take control") : tr("&Try again"));
    m_control->setVisible(state != State::Lost);
    const bool isLossShown = state == State::Lost && m_showsLoss;
    const bool isProblem = state == State::InUse || state == State::Failed || isLossShown;
    setProperty("severity", isProblem ? QStringLiteral("warning") : QStringLiteral("notice"));
    style()->unpolish(this);
    style()->polish(this);
    setVisible(isProblem || isWatching);
}
