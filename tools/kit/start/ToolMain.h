#pragma once

#include "tools/kit/start/ToolProgram.h"

#include <functional>
#include <memory>

class QString;
class QWidget;
class ToolSettings;

/// Creates the main window of a tool.
/// @param camera The camera that was named at the start; empty if none was.
using CreateToolWindow
    = std::function<std::unique_ptr<QWidget>(const QString &camera, ToolSettings &settings)>;

/// The common main() of the tools: parses the arguments, creates the application, shows the window and
/// returns the exit status when the window was closed.
int runTool(const ToolProgram &program, int argc, char **argv, const CreateToolWindow &createWindow);
