#include "tools/imageviewer/files/PanelParts.h"

#include <QComboBox>
#include <QLabel>
#include <QStyle>

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
    label->setProperty("role", QString::fromLatin1(role));
    label->style()->unpolish(label); // The style sheet has rules for the property.
    label->style()->polish(label);
    label->setVisible(!text.isEmpty());
}

void makeNarrow(QComboBox *box)
{
    constexpr int characters = 12;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(characters);
}

void selectData(QComboBox *box, int data)
{
    const int index = box->findData(data);
    if (index >= 0)
        box->setCurrentIndex(index);
}
