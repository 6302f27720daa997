#include "tools/thermalmonitor/AlertNotifier.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>
#include <QWidget>

AlertNotifier::AlertNotifier(QWidget *window) : QObject(window), m_window(window) { }

void AlertNotifier::notify(const QString &title, const QString &text, Urgency urgency)
{
    QApplication::alert(m_window);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/Notifications"), service, QStringLiteral("Notify"));
    const bool isCritical = urgency == Urgency::Critical;
    const QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(uchar(isCritical ? 2 : 1))},
        {QStringLiteral("desktop-entry"), QApplication::desktopFileName()}};
    constexpr int byDesktop = -1; // The desktop decides how long the notification is shown.
    // The text may contain markup for some desktops; a name of the camera is none.
    message << QApplication::applicationDisplayName() << m_notificationId << QString() << title
            << text.toHtmlEscaped() << QStringList() << hints << byDesktop;
    auto *const watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        const QDBusPendingReply<uint> reply = *call;
        m_notificationId = reply.isValid() ? reply.value() : m_notificationId;
        call->deleteLater();
    });
}
