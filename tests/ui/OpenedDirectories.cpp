#include "tests/ui/OpenedDirectories.h"

#include "tests/support/ScriptFile.h"

OpenedDirectories::OpenedDirectories() : m_path(qgetenv("PATH"))
{
    // Written aside and renamed, so that a reader sees the whole call or nothing.
    ScriptFile::writeExecutable(m_directory.filePath(QStringLiteral("xdg-open")),
        "cd \"$(dirname \"$0\")\" && printf '%s\\n' \"$@\" > call.tmp && mv call.tmp call\n");
    qputenv("PATH", m_directory.path().toLocal8Bit() + ':' + m_path);
}

OpenedDirectories::~OpenedDirectories()
{
    qputenv("PATH", m_path);
}

QString OpenedDirectories::arguments() const
{
    return QString::fromUtf8(ScriptFile::read(m_directory.filePath(QStringLiteral("call"))));
}
