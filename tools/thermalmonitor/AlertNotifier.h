#pragma once

#include <QObject>
#include <QString>

class QWidget;

/// Tells a person who looks at something else that something has happened: by a notification of the desktop
/// (the freedesktop interface "org.freedesktop.Notifications"), and by marking the window in the task bar. A
/// desktop without notifications only marks the window.
class AlertNotifier : public QObject
{
    Q_OBJECT

public:
    enum class Urgency
    {
        Normal,
        Critical ///< Stays until the person has seen it.
    };

    /// @param window Marked in the task bar; outlives this object.
    explicit AlertNotifier(QWidget *window);

    /// Replaces the previous notification of this object.
    void notify(const QString &title, const QString &text, Urgency urgency);

private:
    QWidget *m_window;
    uint m_notificationId = 0; // 0 until the desktop has shown one.
};
