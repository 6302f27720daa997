#pragma once

#include <QCoreApplication>
#include <QString>

/// Starts other tools of the installation.
class ToolStarter
{
    Q_DECLARE_TR_FUNCTIONS(ToolStarter)

public:
    /// Starts a program of this program's directory, which finds the camera in the environment variable
    /// CORVIX_CAMERA. The program outlives this one. Returns why it was not started, for people; empty if it
    /// was.
    /// @param program File name, for example "CameraSetup".
    /// @param cameraId Empty if the tool shall ask for the camera.
    static QString start(const QString &program, const QString &cameraId);
};
