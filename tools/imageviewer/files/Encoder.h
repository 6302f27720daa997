#pragma once

#include "tools/imageviewer/files/FfmpegCommand.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QString>

/// The ffmpeg program while it encodes a video. All functions block, and are called on one thread.
class Encoder
{
    Q_DECLARE_TR_FUNCTIONS(Encoder)

public:
    /// How long the program may take nothing before it counts as hanging.
    static constexpr int hangTimeout = 30000; // Milliseconds.

    /// Starts the program. Returns false if that failed; see problem().
    bool start(const QStringList &arguments);

    /// Writes a frame; returns when the program has taken all of it. Returns false on failure.
    bool write(const QByteArray &frame);

    /// Ends the video and waits until the program has written it. Returns false on failure.
    bool finish();

    QString problem() const { return m_problem; }

private:
    bool fail(const QString &problem);
    bool failWithOutput();

    QProcess m_process;
    QString m_problem;
};
