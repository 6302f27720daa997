#include "tools/imageviewer/files/FfmpegCommand.h"

#include <QStandardPaths>

namespace {

/// The arguments of a codec and of the file around it.
QStringList codecArguments(RecordingFormat codec, bool isColor)
{
    if (codec == RecordingFormat::VideoH264) {
        // A fragmented file stays readable whatever happens to the encoder.
        return QStringLiteral("-c:v libx264 -preset veryfast -crf 18 -pix_fmt yuv420p "
                              "-movflags +frag_keyframe+empty_moov+default_base_moof -f mp4")
            .split(QLatin1Char(' '));
    }
    const QString pixels = isColor ? QStringLiteral("bgr0") : QStringLiteral("gray");
    return QStringLiteral("-c:v ffv1 -level 3 -g 1 -pix_fmt %1 -f matroska")
        .arg(pixels)
        .split(QLatin1Char(' '));
}

} // namespace

QString findFfmpeg()
{
    return QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
}

QStringList ffmpegArguments(RecordingFormat codec, const VideoFormat &format, const QString &path)
{
    QStringList arguments
        = QStringLiteral("-hide_banner -loglevel error -y -f rawvideo").split(QLatin1Char(' '));
    arguments << QStringLiteral("-pix_fmt")
              << (format.isColor ? QStringLiteral("rgb24") : QStringLiteral("gray")) << QStringLiteral("-s:v")
              << QStringLiteral("%1x%2").arg(format.size.width()).arg(format.size.height())
              << QStringLiteral("-r") << QString::number(format.rate, 'g', 10) << QStringLiteral("-i")
              << QStringLiteral("pipe:0");
    arguments << codecArguments(codec, format.isColor);
    return arguments << QStringLiteral("file:") + path; // A name that begins with "-" is no option.
}

bool isVideo(RecordingFormat format)
{
    return format == RecordingFormat::VideoH264 || format == RecordingFormat::VideoLossless;
}

QString recordingExtension(RecordingFormat format)
{
    switch (format) {
    case RecordingFormat::BigTiff:
        return QStringLiteral("tif");
    case RecordingFormat::Raw:
        break;
    case RecordingFormat::VideoH264:
        return QStringLiteral("mp4");
    case RecordingFormat::VideoLossless:
        return QStringLiteral("mkv");
    }
    return QStringLiteral("raw");
}
