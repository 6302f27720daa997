#include "tools/flatfield/FlatFieldWindow.h"
#include "tools/kit/start/ToolMain.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("FlatField"),
        QStringLiteral("Measures the shading of a camera and saves its correction."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<FlatFieldWindow>(camera, settings);
    });
}
