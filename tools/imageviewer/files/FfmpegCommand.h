#pragma once

#include "tools/imageviewer/files/RecordingOptions.h"

#include <QSize>
#include <QStringList>

/// What the encoder receives: frames without header, one after the other.
struct VideoFormat
{
    QSize size;
    bool isColor = false; ///< Red, green, blue; otherwise grey. 8 bits each.
    double rate = 25; ///< Images per second when the video is played.
};

/// Returns the path of the ffmpeg program; empty if it is not installed.
QString findFfmpeg();

/// Returns the arguments with which ffmpeg reads the frames from its standard input and writes the video.
QStringList ffmpegArguments(RecordingFormat codec, const VideoFormat &format, const QString &path);

/// Returns true if ffmpeg is needed for the format.
bool isVideo(RecordingFormat format);

/// Returns the extension of the file without dot: "tif", "raw", "mp4" or "mkv".
QString recordingExtension(RecordingFormat format);
