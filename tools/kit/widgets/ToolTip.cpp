#include "tools/kit/widgets/ToolTip.h"

QString plainToolTip(const QString &text)
{
    return text.isEmpty()
        ? QString()
        : QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}
