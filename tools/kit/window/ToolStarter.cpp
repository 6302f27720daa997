#include "tools/kit/window/ToolStarter.h"

#include "desktop/StartTool.h"

#include <QDir>

QString ToolStarter::start(const QString &program, const QString &cameraId)
{
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(program);
    if (startTool(path, cameraId))
        return {};
    return tr("%1 cannot be started. Check that the file exists and is executable.")
        .arg(QDir::toNativeSeparators(path));
}
