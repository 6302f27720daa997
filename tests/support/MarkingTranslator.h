#pragma once

#include <QTranslator>

/// Translates every string into "[context] string". Install the translator in the application.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QStringLiteral("[%1] %2").arg(QString::fromUtf8(context), QString::fromUtf8(sourceText));
    }
};
