#include "tools/imageviewer/files/FileNamePattern.h"

FileNamePattern::FileNamePattern(const QString &pattern)
{
    Q_UNUSED(pattern)
}
QString FileNamePattern::name(const FileNameValues &values, unsigned number) const
{
    Q_UNUSED(values)
    return QString::number(number);
}
unsigned FileNamePattern::freeNumber(const FileNameValues &values, unsigned first,
    const std::function<bool(const QString &name)> &isTaken) const
{
    while (isTaken(name(values, first)))
        ++first;
    return first;
}
QString FileNamePattern::help()
{
    return {};
}
QString FileNamePattern::defaultPattern()
{
    return QStringLiteral("{camera}-{date}-{number:4}");
}
void FileNamePattern::addPlaceholder(const QString &text)
{
    Q_UNUSED(text)
}
