#include "tools/kit/window/ToolStarter.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

QString ToolStarter::start(const QString &program, const QString &cameraId)
{
    const QDir directory(QCoreApplication::applicationDirPath());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CORVIX_CAMERA"), cameraId);
    QProcess process;
    process.setProgram(directory.filePath(program));
    process.setWorkingDirectory(directory.path());
    process.setProcessEnvironment(environment);
    if (process.startDetached())
        return {};
    return tr("%1 cannot be started. Check that the file exists and is executable.")
        .arg(QDir::toNativeSeparators(process.program()));
}
