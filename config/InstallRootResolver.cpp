#include "config/InstallRootResolver.h"

#include <QCoreApplication>
#include <QDir>

QString InstallRootResolver::resolve()
{
    QDir dir(QCoreApplication::applicationDirPath());
    if (!hasCorvixStructure(dir))
        dir.cdUp(); // Intended: one level only, and the parent may lack the structure.
    return dir.absolutePath();
}

bool InstallRootResolver::hasCorvixStructure(const QDir &dir)
{
    return dir.exists(QStringLiteral("api")) || dir.exists(QStringLiteral("cti"))
        || dir.exists(QStringLiteral("bin"));
}
