#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The notification service of a desktop, as far as programs send notifications.
class FakeNotifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    /// Takes the name of the service on the bus of the session. Returns false if there is no bus.
    bool start()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        return bus.registerService(QStringLiteral("org.freedesktop.Notifications"))
            && bus.registerObject(
                QStringLiteral("/org/freedesktop/Notifications"), this, QDBusConnection::ExportAllSlots);
    }

    QStringList texts; ///< Texts of all notifications.
    QVector<uint> replaced; ///< The number of the notification that each one replaces.
    QVector<int> urgencies;

public slots:
    uint Notify(const QString &, uint replacedId, const QString &, const QString &, const QString &text,
        const QStringList &, const QVariantMap &hints, int)
    {
        texts.append(text);
        replaced.append(replacedId);
        urgencies.append(hints.value(QStringLiteral("urgency")).toInt());
        return number;
    }

public:
    static constexpr uint number = 7;
};
