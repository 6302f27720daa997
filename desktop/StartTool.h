#pragma once

#include <QString>

/// Starts a program with its own directory as the working directory. The program finds the ID of the camera
/// in its environment variable CORVIX_CAMERA, and it outlives this program. Returns true only if a process
/// was created.
/// @param cameraId Empty if the program shall ask for the camera.
bool startTool(const QString &path, const QString &cameraId);
