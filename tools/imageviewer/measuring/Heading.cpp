#include "tools/imageviewer/measuring/Heading.h"

#include <QLabel>
#include <QVariant>

QLabel *createHeading(const QString &text)
{
    auto *const label = new QLabel(text);
    label->setProperty("heading", true);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}
