#include "tools/kit/start/ToolMain.h"
#include "tools/pixelrepair/RepairWindow.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("PixelRepair"),
        QStringLiteral("Finds the defect pixels of a camera and saves a map that corrects them."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<RepairWindow>(camera, settings);
    });
}
