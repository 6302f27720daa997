#include "tools/imageviewer/files/Encoder.h"

#include <QDeadlineTimer>

bool Encoder::start(const QStringList &arguments)
{
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.start(findFfmpeg(), arguments);
    return m_process.waitForStarted(hangTimeout)
        || fail(tr("ffmpeg cannot be started: %1").arg(m_process.errorString()));
}

bool Encoder::write(const QByteArray &frame)
{
    m_process.write(frame);
    QDeadlineTimer deadline(hangTimeout);
    while (m_process.bytesToWrite() > 0) {
        if (m_process.state() == QProcess::NotRunning)
            return failWithOutput();
        const qint64 before = m_process.bytesToWrite();
        constexpr int slice = 200; // Milliseconds.
        m_process.waitForBytesWritten(slice);
        if (m_process.bytesToWrite() < before)
            deadline.setRemainingTime(hangTimeout);
        if (deadline.hasExpired())
            return fail(tr("ffmpeg has not accepted an image for %n second(s)", nullptr, hangTimeout / 1000));
    }
    return true;
}

bool Encoder::finish()
{
    m_process.closeWriteChannel();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(hangTimeout))
        return fail(tr("ffmpeg has not ended after %n second(s)", nullptr, hangTimeout / 1000));
    return (m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0) || failWithOutput();
}

bool Encoder::fail(const QString &problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
    m_process.kill();
    m_process.waitForFinished(hangTimeout);
    return false;
}

bool Encoder::failWithOutput()
{
    m_process.waitForFinished(hangTimeout);
    const QList<QByteArray> lines = m_process.readAllStandardError().trimmed().split('\n');
    return fail(tr("ffmpeg has failed: %1").arg(QString::fromUtf8(lines.last().trimmed())));
}
