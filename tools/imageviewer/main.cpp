#include "desktop/NoOpenGl.h"
#include "desktop/Translations.h"
#include "tools/imageviewer/ViewerWindow.h"
#include "tools/kit/start/ToolApplication.h"
#include "tools/kit/start/ToolArguments.h"
#include "tools/kit/start/ToolSettings.h"

#include <QIcon>

#include <csignal>
#include <optional>

int main(int argc, char *argv[])
{
    const ToolProgram program{QStringLiteral("ImageViewer"),
        QStringLiteral("Shows, measures and records the live pictures of a camera."),
        QStringLiteral(CORVIX_VERSION)};
    for (const int signal : {SIGXFSZ, SIGPIPE}) // The recorder reports the write that has failed.
        std::signal(signal, SIG_IGN);
    const ToolArguments arguments(program, argc, argv);
    if (arguments.exitStatus())
        return *arguments.exitStatus();

    std::optional<NoOpenGl> noOpenGl(std::in_place);
    ToolApplication application(argc, argv, program);
    noOpenGl.reset();
    // Without the desktop's files, for example after unpacking an archive, the icon theme has no such icon.
    if (QApplication::windowIcon().isNull())
        QApplication::setWindowIcon(QIcon(QStringLiteral(":/tool/icon-256.png")));
    const Translations translations(QStringLiteral("tools")); // Has to exist before the window.
    ToolSettings settings(program.name);
    ViewerWindow window(arguments.camera(), settings);
    window.show();
    return QApplication::exec();
}
