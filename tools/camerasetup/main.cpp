#include "tools/camerasetup/SetupWindow.h"
#include "tools/kit/start/ToolMain.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("CameraSetup"),
        QStringLiteral("Shows, changes, compares and keeps every feature of a camera."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<SetupWindow>(camera, settings);
    });
}
