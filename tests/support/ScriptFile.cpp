#include "tests/support/ScriptFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString ScriptFile::write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
        qFatal("Cannot write %s", qUtf8Printable(path));
    return path;
}

QString ScriptFile::writeExecutable(const QString &path, const QByteArray &body)
{
    write(path, "#!/bin/sh\n" + body);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

QByteArray ScriptFile::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
