#include "tools/kit/start/ToolMain.h"
#include "tools/linescantuner/LineScanWindow.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("LineScanTuner"),
        QStringLiteral("Matches the line rate or the encoder of a line scan camera to the movement."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<LineScanWindow>(camera, settings);
    });
}
