#include "tests/ui/OpenedDirectories.h"

#include "tests/support/ScriptFile.h"

OpenedDirectories::OpenedDirectories() : m_path(qgetenv("PATH"))
{
    // Appended in one write, so that a reader sees whole calls only.
    ScriptFile::writeExecutable(m_directory.filePath(QStringLiteral("xdg-open")),
        "printf '%s\\n' \"$@\" >> \"$(dirname \"$0\")/calls\"\n");
    qputenv("PATH", m_directory.path().toLocal8Bit() + ':' + m_path);
}

OpenedDirectories::~OpenedDirectories()
{
    qputenv("PATH", m_path);
}

QString OpenedDirectories::arguments() const
{
    return QString::fromUtf8(ScriptFile::read(m_directory.filePath(QStringLiteral("calls"))));
}
