#include "config/InstallRootResolver.h"

#include <QCoreApplication>
#include <QDir>

QString InstallRootResolver::resolve()
{
    QDir dir(QCoreApplication::applicationDirPath());
    if (!hasCorvixStructure(dir))
        dir.cdUp(); // One level only; whether the parent has the structure does not matter.
    return dir.absolutePath();
}

bool InstallRootResolver::hasCorvixStructure(const QDir &dir)
{
    return dir.exists(QStringLiteral("api")) || dir.exists(QStringLiteral("cti"))
        || dir.exists(QStringLiteral("bin"));
}
