#include "tools/focusassistant/FocusWindow.h"
#include "tools/kit/start/ToolMain.h"

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("FocusAssistant"),
        QStringLiteral("Measures the sharpness of the picture, finds the best focus and names its tilt."),
        QStringLiteral(CORVIX_VERSION)};
    return runTool(program, argc, argv, [](const QString &camera, ToolSettings &settings) {
        return std::make_unique<FocusWindow>(camera, settings);
    });
}
