#include "tools/kit/widgets/Role.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

void changeRole(QWidget *widget, const char *role)
{
    widget->setProperty("role", QString::fromLatin1(role));
    widget->style()->unpolish(widget); // A style sheet does not notice a changed property by itself.
    widget->style()->polish(widget);
}
