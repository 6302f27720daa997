#include "tools/kit/widgets/Heading.h"

#include <QLabel>
#include <QVariant>

QLabel *createHeading(const QString &text)
{
    auto *const label = new QLabel(text);
    label->setProperty("role", QStringLiteral("heading"));
    return label;
}
