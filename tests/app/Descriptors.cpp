#include "tests/app/Descriptors.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// The link as it reads; Qt would take "pipe:[1]" for a relative path.
QString linkText(const QString &path)
{
    QByteArray text(4096, '\0');
    const ssize_t length
        = readlink(QFile::encodeName(path).constData(), text.data(), std::size_t(text.size()));
    return QString::fromLocal8Bit(text.constData(), int(length));
}

QStringList passedOnNow()
{
    QStringList found;
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    // Links to pipes and sockets lead nowhere that exists: QDir::System lists them.
    for (const QFileInfo &entry : descriptors.entryInfoList(QDir::Files | QDir::System)) {
        const int flags = fcntl(entry.fileName().toInt(), F_GETFD);
        if (flags != -1 && (flags & FD_CLOEXEC) == 0)
            found.append(linkText(entry.filePath()));
    }
    return found;
}

const QStringList atStart = passedOnNow();

} // namespace

const QStringList &Descriptors::inheritedAtStart()
{
    return atStart;
}

QStringList Descriptors::targets(const QByteArray &listing)
{
    QStringList found;
    for (const QByteArray &line : listing.split('\n')) {
        const int arrow = line.indexOf(" -> ");
        if (arrow >= 0)
            found.append(QString::fromLocal8Bit(line.mid(arrow + 4)));
    }
    return found;
}
