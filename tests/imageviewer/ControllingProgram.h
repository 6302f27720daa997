#pragma once

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// Another program that controls a camera and streams: `cvxctl record`.
class ControllingProgram
{
public:
    /// Starts the program, which sets the width of the images, and waits until it streams.
    ControllingProgram(const QString &camera, int width)
    {
        const QString file = m_folder.filePath(QStringLiteral("images.raw"));
        m_process.start(qEnvironmentVariable("CORVIX_TEST_SDK") + QStringLiteral("/bin/cvxctl"),
            {QStringLiteral("record"), camera, file, QStringLiteral("--set"),
                QStringLiteral("Width=%1").arg(width)});
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(file).size() > 0, 60000);
    }

    /// Ends the program as Ctrl-C does.
    void end()
    {
        m_process.terminate();
        QVERIFY(m_process.waitForFinished(60000));
    }

private:
    const QTemporaryDir m_folder;
    QProcess m_process;
};
