#include "tools/kit/assistant/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

WheelGuard::WheelGuard(QWidget *panel) : QObject(panel)
{
    for (QWidget *const control : panel->findChildren<QWidget *>()) {
        if (!qobject_cast<QComboBox *>(control) && !qobject_cast<QAbstractSpinBox *>(control)
            && !qobject_cast<QSlider *>(control))
            continue;
        control->setFocusPolicy(Qt::StrongFocus); // The wheel gives no focus either.
        control->installEventFilter(this);
    }
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore(); // The scroll area gets the event.
    return true;
}
