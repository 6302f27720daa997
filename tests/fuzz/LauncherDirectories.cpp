#include "tests/fuzz/LauncherDirectories.h"

#include "ui/CtiSearchDirectories.h"

#include <QFile>

std::vector<std::string> launcherDirectories(const std::string &installRoot)
{
    std::vector<std::string> names;
    const QStringList directories = ctiSearchDirsFromCvxCXml(QString::fromStdString(installRoot));
    for (const QString &directory : directories)
        names.push_back(QFile::encodeName(directory).toStdString());
    return names;
}
