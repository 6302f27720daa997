#include "tools/kit/start/ToolMain.h"
#include "tools/tapbalance/TapWindow.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("TapBalance"),
        QStringLiteral("Measures how the taps of a sensor differ, and sets them so that they agree."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<TapWindow>(camera, settings);
    });
}
