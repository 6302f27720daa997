#include "tools/imageviewer/files/FfmpegCommand.h"

#include <QStandardPaths>

QString findFfmpeg()
{
    return QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
}
QStringList ffmpegArguments(RecordingFormat, const VideoFormat &, const QString &)
{
    return {};
}
QString recordingExtension(RecordingFormat)
{
    return {};
}
