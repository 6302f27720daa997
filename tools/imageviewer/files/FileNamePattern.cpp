#include "tools/imageviewer/files/FileNamePattern.h"

#include <QRegularExpression>

namespace {

constexpr int maxNameBytes = 180; // Leaves room for extensions and temporary names; 255 is the usual limit.

using ValueText = QString (*)(const FileNameValues &values);

struct Placeholder
{
    const char *name;
    const char *explanation;
    ValueText text; ///< Null for the number.
};

const Placeholder placeholders[] = {
    {"camera", QT_TRANSLATE_NOOP("FileNamePattern", "name or model of the camera"),
        [](const FileNameValues &values) { return values.camera; }},
    {"serial", QT_TRANSLATE_NOOP("FileNamePattern", "serial number of the camera"),
        [](const FileNameValues &values) { return values.serialNumber; }},
    {"date", QT_TRANSLATE_NOOP("FileNamePattern", "date of the image, for example 2026-01-31"),
        [](const FileNameValues &values) { return values.time.toString(QStringLiteral("yyyy-MM-dd")); }},
    {"time", QT_TRANSLATE_NOOP("FileNamePattern", "time of the image, for example 23-59-59"),
        [](const FileNameValues &values) { return values.time.toString(QStringLiteral("hh-mm-ss")); }},
    {"number", QT_TRANSLATE_NOOP("FileNamePattern", "next free number; {number:4} has at least four digits"),
        nullptr},
    {"frame", QT_TRANSLATE_NOOP("FileNamePattern", "frame ID of the image"),
        [](const FileNameValues &values) { return QString::number(values.frameId); }},
    {"format", QT_TRANSLATE_NOOP("FileNamePattern", "pixel format of the image, for example Mono8"),
        [](const FileNameValues &values) { return values.pixelFormat; }},
};

const Placeholder *findPlaceholder(const QString &name)
{
    for (const Placeholder &placeholder : placeholders) {
        if (name == QLatin1String(placeholder.name))
            return &placeholder;
    }
    return nullptr;
}

/// Replaces what file systems, also those of other systems, do not permit in a name.
QString permitted(QString text)
{
    static const QRegularExpression forbidden(QStringLiteral(R"([\x00-\x1f\x7f/\\:*?"<>|{}]+)"));
    text.replace(forbidden, QStringLiteral("_"));
    text = text.trimmed();
    return text.isEmpty() ? QStringLiteral("unknown") : text;
}

} // namespace

FileNamePattern::FileNamePattern(const QString &pattern)
{
    static const QRegularExpression piece(QStringLiteral(R"(\{([^{}]*)\}|([^{}]+)|([{}]))"));
    auto matches = piece.globalMatch(pattern);
    while (matches.hasNext() && m_problem.isEmpty()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.capturedLength(3) > 0)
            m_problem = tr("a brace is missing; placeholders look like {number}");
        else if (match.capturedLength(2) > 0)
            m_parts.append({match.captured(2), false, 0});
        else
            addPlaceholder(match.captured(1));
    }
    if (m_problem.isEmpty() && pattern.contains(QLatin1Char('/')))
        m_problem = tr("the name must not contain \"/\"; choose the folder above");
    if (m_problem.isEmpty() && pattern.trimmed().isEmpty())
        m_problem = tr("the name is empty");
}

void FileNamePattern::addPlaceholder(const QString &text)
{
    const QString name = text.section(QLatin1Char(':'), 0, 0);
    const QString digits = text.section(QLatin1Char(':'), 1);
    const Placeholder *const placeholder = findPlaceholder(name);
    if (!placeholder) {
        QStringList names;
        for (const Placeholder &known : placeholders)
            names << QStringLiteral("{%1}").arg(QLatin1String(known.name));
        m_problem
            = tr("{%1} is not a placeholder; use one of %2").arg(text, names.join(QStringLiteral(", ")));
        return;
    }
    constexpr int maxDigits = 9;
    bool isNumber = true;
    const int count = digits.isEmpty() ? 1 : digits.toInt(&isNumber);
    const bool mayHaveDigits = !placeholder->text || digits.isEmpty();
    if (!mayHaveDigits || !isNumber || count < 1 || count > maxDigits) {
        m_problem = tr("{%1} has to be like {number:4}, with 1 to %2 digits").arg(text).arg(maxDigits);
        return;
    }
    m_hasNumber = m_hasNumber || !placeholder->text;
    m_parts.append({name, true, count});
}

QString FileNamePattern::name(const FileNameValues &values, unsigned number) const
{
    QString name;
    for (const Part &part : m_parts) {
        if (!part.isPlaceholder)
            name += part.text;
        else if (const ValueText text = findPlaceholder(part.text)->text)
            name += permitted(text(values));
        else
            name += QStringLiteral("%1").arg(number, part.digits, 10, QLatin1Char('0'));
    }
    if (name.startsWith(QLatin1Char('.')))
        name[0] = QLatin1Char('_'); // Otherwise, the file would be hidden.
    const bool isTooLong = name.toUtf8().size() > maxNameBytes;
    while (name.toUtf8().size() > maxNameBytes)
        name.chop(1);
    if (isTooLong || (!m_hasNumber && number > 1))
        name += QStringLiteral("-%1").arg(number); // The part with the number may have been cut off.
    return name;
}

unsigned FileNamePattern::freeNumber(const FileNameValues &values, unsigned first,
    const std::function<bool(const QString &name)> &isTaken) const
{
    unsigned number = first;
    while (isTaken(name(values, number)))
        ++number;
    return number;
}

QString FileNamePattern::help()
{
    QString text = tr("The name may contain these placeholders:");
    for (const Placeholder &placeholder : placeholders)
        text
            += QStringLiteral("\n{%1}: %2").arg(QLatin1String(placeholder.name), tr(placeholder.explanation));
    return text;
}

QString FileNamePattern::defaultPattern()
{
    return QStringLiteral("{camera}-{date}-{number:4}");
}
