#include "desktop/NoOpenGl.h"
#include "desktop/Translations.h"
#include "tools/imageviewer/ViewerWindow.h"
#include "tools/kit/start/ToolApplication.h"
#include "tools/kit/start/ToolArguments.h"
#include "tools/kit/start/ToolSettings.h"

#include <optional>

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("ImageViewer"),
        QStringLiteral("Shows, measures and records the live pictures of a camera."),
        QStringLiteral(CORVIX_VERSION)};
    const ToolArguments arguments(program, argc, argv);
    if (arguments.exitStatus())
        return *arguments.exitStatus();

    std::optional<NoOpenGl> noOpenGl(std::in_place);
    ToolApplication application(argc, argv, program);
    noOpenGl.reset();
    const Translations translations(QStringLiteral("tools")); // Has to exist before the window.
    ToolSettings settings(program.name);
    ViewerWindow window(arguments.camera(), settings);
    window.show();
    return QApplication::exec();
}
