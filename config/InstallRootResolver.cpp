#include "config/InstallRootResolver.h"

#include <QCoreApplication>
#include <QDir>

QString InstallRootResolver::resolve()
{
    QDir dir(QCoreApplication::applicationDirPath());
    if (!hasCorvixStructure(dir))
        dir.cdUp(); // Intended: the parent is the root even if it lacks the structure.
    return dir.absolutePath();
}

bool InstallRootResolver::hasCorvixStructure(const QDir &dir)
{
    return dir.exists(QStringLiteral("api")) || dir.exists(QStringLiteral("cti"))
        || dir.exists(QStringLiteral("bin"));
}
