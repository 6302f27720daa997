#include "tools/imageviewer/ViewerWindow.h"
#include "tools/kit/start/ToolMain.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("ImageViewer"),
        QStringLiteral("Shows, measures and records the live pictures of a camera."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<ViewerWindow>(camera, settings);
    });
}
