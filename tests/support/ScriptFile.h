#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Reads and writes small files, usually in a QTemporaryDir.
namespace ScriptFile {

/// Creates missing directories, writes the file and returns its path.
inline QString write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
        qFatal("Cannot write %s", qUtf8Printable(path));
    return path;
}

/// Writes an executable shell script, whose first line is "#!/bin/sh", and returns its path.
inline QString writeExecutable(const QString &path, const QByteArray &body)
{
    write(path, "#!/bin/sh\n" + body);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

/// Returns the content of the file; empty if the file cannot be opened.
inline QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ScriptFile
