#pragma once

#include "tools/kit/start/ToolProgram.h"

#include <QString>

#include <optional>

/// The command line of a tool: one camera, --help and --version. Needs neither a QApplication nor a display.
class ToolArguments
{
public:
    /// Parses the arguments. Prints help or version to stdout, and an error to stderr.
    ToolArguments(const ToolProgram &program, int argc, const char *const *argv);

    /// Returns the status with which the program has to end at once: 0 after help or version, 2 after an
    /// error. No value if the program has to continue.
    std::optional<int> exitStatus() const { return m_exitStatus; }

    /// Returns the text that names the camera: the argument, otherwise the environment variable
    /// CORVIX_CAMERA; empty if there is neither.
    QString camera() const { return m_camera; }

private:
    QString m_camera;
    std::optional<int> m_exitStatus;
};
