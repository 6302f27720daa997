#include "tools/kit/start/ToolMain.h"

#include "desktop/NoOpenGl.h"
#include "desktop/Translations.h"
#include "tools/kit/start/ToolApplication.h"
#include "tools/kit/start/ToolArguments.h"
#include "tools/kit/start/ToolSettings.h"

#include <QIcon>
#include <QWidget>

#include <csignal>
#include <optional>

int runTool(const ToolProgram &program, int argc, char **argv, const CreateToolWindow &createWindow)
{
    for (const int signal :
        {SIGXFSZ, SIGPIPE}) // Whoever writes a file or a pipe reports the write that failed.
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
    const std::unique_ptr<QWidget> window = createWindow(arguments.camera(), settings);
    window->show();
    return QApplication::exec();
}
