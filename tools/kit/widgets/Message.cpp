#include "tools/kit/widgets/Message.h"

#include "tools/kit/widgets/Role.h"

#include <QLabel>

QLabel *createMessage(QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setWordWrap(true);
    label->setMinimumWidth(1); // A long file name does not widen the panel.
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->hide();
    return label;
}

void showMessage(QLabel *label, const QString &text, const char *role)
{
    label->setText(text);
    changeRole(label, role);
    label->setVisible(!text.isEmpty());
}
