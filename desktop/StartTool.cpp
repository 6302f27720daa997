#include "desktop/StartTool.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

bool startTool(const QString &path, const QString &cameraId)
{
    const QFileInfo file(path);
    if (!file.exists())
        return false;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CORVIX_CAMERA"), cameraId);
    QProcess process;
    process.setProgram(path);
    process.setWorkingDirectory(file.absolutePath());
    process.setProcessEnvironment(environment);
    qint64 processId = 0;
    return process.startDetached(&processId) && processId > 0;
}
