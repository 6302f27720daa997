#include "tools/kit/start/ToolApplication.h"
#include "tools/kit/start/ToolArguments.h"

#include <cstdio>

/// Prints the camera. With the environment variable WITH_APPLICATION, also creates the application and prints
/// what it has set.
int main(int argc, char *argv[])
{
    const ToolProgram program{
        QStringLiteral("TestTool"), QStringLiteral("Tests the start of a tool."), QStringLiteral("1.2.3")};
    const ToolArguments arguments(program, argc, argv);
    if (arguments.exitStatus())
        return *arguments.exitStatus();
    std::printf("camera \"%s\"\n", qPrintable(arguments.camera()));
    if (!qEnvironmentVariableIsSet("WITH_APPLICATION"))
        return 0;
    const ToolApplication application(argc, argv, program);
    std::printf("%s %s %s %s\n", qPrintable(QGuiApplication::desktopFileName()),
        qPrintable(QCoreApplication::applicationName()), qPrintable(QCoreApplication::applicationVersion()),
        application.styleSheet().isEmpty() ? "bare" : "styled");
    return 0;
}
