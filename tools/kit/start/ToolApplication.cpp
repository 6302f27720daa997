#include "tools/kit/start/ToolApplication.h"

#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>
#include <QtDebug>

/// Registers the resources of this static library. Q_INIT_RESOURCE does not work inside a namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(tools);
}

namespace {

/// A colour of the palette, which the style uses where the style sheet says nothing.
struct RoleColour
{
    QPalette::ColorRole role;
    QRgb enabled;
    QRgb disabled;
};

constexpr RoleColour roleColours[] = {
    {QPalette::Window, 0xff0f1419, 0xff0f1419},
    {QPalette::WindowText, 0xffe8edf2, 0xff5b6b7f},
    {QPalette::Base, 0xff131b26, 0xff131b26},
    {QPalette::AlternateBase, 0xff1a2332, 0xff1a2332},
    {QPalette::Text, 0xffe8edf2, 0xff5b6b7f},
    {QPalette::PlaceholderText, 0xff7d8da1, 0xff5b6b7f},
    {QPalette::Button, 0xff1e2a3a, 0xff17202d},
    {QPalette::ButtonText, 0xffe8edf2, 0xff5b6b7f},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::Highlight, 0xff1b5e93, 0xff2d3a4d},
    {QPalette::HighlightedText, 0xffffffff, 0xff94a3b8},
    {QPalette::ToolTipBase, 0xff1a2332, 0xff1a2332},
    {QPalette::ToolTipText, 0xffe8edf2, 0xffe8edf2},
    {QPalette::Link, 0xff64b5f6, 0xff5b6b7f},
    {QPalette::LinkVisited, 0xff64b5f6, 0xff5b6b7f},
    {QPalette::Light, 0xff2d3a4d, 0xff2d3a4d},
    {QPalette::Midlight, 0xff25313f, 0xff25313f},
    {QPalette::Mid, 0xff2d3a4d, 0xff2d3a4d},
    {QPalette::Dark, 0xff0b0f13, 0xff0b0f13},
    {QPalette::Shadow, 0xff000000, 0xff000000},
};

QPalette darkPalette()
{
    QPalette palette;
    for (const RoleColour &colour : roleColours) {
        palette.setColor(colour.role, QColor::fromRgb(colour.enabled));
        palette.setColor(QPalette::Disabled, colour.role, QColor::fromRgb(colour.disabled));
    }
    return palette;
}

QString styleSheetText()
{
    QFile file(QStringLiteral(":/tools/tools.qss"));
    if (!file.open(QIODevice::ReadOnly))
        qWarning("The style sheet of the tools cannot be read");
    return QString::fromUtf8(file.readAll());
}

/// Makes the settings that must precede the application object. Returns its argument.
int &prepare(int &argc, const ToolProgram &program)
{
    initialiseResources();
    // A Wayland desktop finds the desktop entry by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("example.orvelle.") + program.name);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    return argc;
}

} // namespace

ToolApplication::ToolApplication(int &argc, char **argv, const ToolProgram &program)
    : QApplication(prepare(argc, program), argv)
{
    setApplicationName(program.name);
    setApplicationVersion(program.version);
    setWindowIcon(QIcon::fromTheme(desktopFileName()));
    setPalette(darkPalette());
    setStyleSheet(styleSheetText());
}
