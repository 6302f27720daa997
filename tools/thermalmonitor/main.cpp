#include "tools/kit/start/ToolMain.h"
#include "tools/thermalmonitor/ThermalWindow.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("ThermalMonitor"),
        QStringLiteral(
            "Follows the temperatures of a camera: rate, expected final value, thresholds and log."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<ThermalWindow>(camera, settings);
    });
}
