#include "tools/imageviewer/ViewerActions.h"

#include "tools/kit/start/ToolIcons.h"

#include <QMenu>
#include <QToolBar>

#include <initializer_list>

namespace {

using Kind = ToolIcons::Kind;

QAction *createAction(
    QObject *parent, const QString &text, const QKeySequence &keys, const QIcon &icon, bool isCheckable)
{
    auto *action = new QAction(icon, text, parent);
    action->setShortcut(keys);
    action->setCheckable(isCheckable);
    const QString plain = ShortcutPage::plainText(text);
    action->setToolTip(keys.isEmpty()
            ? plain
            : plain + QStringLiteral(" (%1)").arg(keys.toString(QKeySequence::NativeText)));
    return action;
}

} // namespace

ViewerActions::ViewerActions(ImageCanvas &canvas, QObject *parent)
    : QObject(parent),
      live(createAction(this, tr("&Live"), Qt::Key_F5, ToolIcons::icon(Kind::Play), true)),
      freeze(createAction(this, tr("Free&ze"), Qt::CTRL + Qt::Key_F, ToolIcons::icon(Kind::Pause), true)),
      snapshot(createAction(
          this, tr("&Save snapshot"), QKeySequence::Save, ToolIcons::icon(Kind::Snapshot), false)),
      record(createAction(this, tr("&Record"), Qt::CTRL + Qt::Key_R, ToolIcons::icon(Kind::Record), true)),
      clipMarks(createAction(
          this, tr("Mark clipped &pixels"), Qt::CTRL + Qt::Key_E, ToolIcons::icon(Kind::ClipMarks), true)),
      grid(createAction(this, tr("Gri&d"), Qt::CTRL + Qt::Key_G, ToolIcons::icon(Kind::Grid), true)),
      crosshair(
          createAction(this, tr("&Crosshair"), Qt::CTRL + Qt::Key_K, ToolIcons::icon(Kind::Crosshair), true)),
      fullScreen(
          createAction(this, tr("F&ull screen"), Qt::Key_F11, ToolIcons::icon(Kind::FullScreen), true)),
      newWindow(createAction(this, tr("&New window"), QKeySequence::New, {}, false)),
      cameraSetup(createAction(
          this, tr("All &features (Camera Setup)"), Qt::Key_F12, ToolIcons::icon(Kind::Settings), false)),
      corrections(createAction(this, tr("&Corrections…"), {}, {}, false)),
      m_overlays{grid, crosshair, clipMarks},
      m_tools(new QActionGroup(this))
{
    createViewActions(canvas);
    createToolActions(canvas);
}

void ViewerActions::createViewActions(ImageCanvas &canvas)
{
    using Slot = void (ImageCanvas::*)();
    struct Command
    {
        QList<QAction *> &list;
        QString text;
        QKeySequence keys;
        Kind icon;
        Slot slot;
    };
    const Command commands[] = {
        {m_zoom, tr("&Fit into the window"), Qt::CTRL + Qt::Key_0, Kind::Fit, &ImageCanvas::fit},
        {m_zoom, tr("&Actual size"), Qt::CTRL + Qt::Key_1, Kind::ActualSize, &ImageCanvas::showActualSize},
        {m_zoom, tr("Zoom &in"), QKeySequence::ZoomIn, Kind::ZoomIn, &ImageCanvas::zoomIn},
        {m_zoom, tr("Zoom &out"), QKeySequence::ZoomOut, Kind::ZoomOut, &ImageCanvas::zoomOut},
        {m_turns, tr("Rotate &left"), Qt::CTRL + Qt::Key_BracketLeft, Kind::RotateLeft,
            &ImageCanvas::rotateLeft},
        {m_turns, tr("Rotate &right"), Qt::CTRL + Qt::Key_BracketRight, Kind::RotateRight,
            &ImageCanvas::rotateRight},
        {m_turns, tr("Mirror &horizontally"), Qt::CTRL + Qt::Key_H, Kind::MirrorHorizontal,
            &ImageCanvas::mirrorHorizontally},
        {m_turns, tr("Mirror &vertically"), Qt::CTRL + Qt::Key_J, Kind::MirrorVertical,
            &ImageCanvas::mirrorVertically},
    };
    for (const Command &command : commands) {
        QAction *const action
            = createAction(this, command.text, command.keys, ToolIcons::icon(command.icon), false);
        connect(action, &QAction::triggered, &canvas, command.slot);
        command.list.append(action);
    }
    connect(grid, &QAction::toggled, &canvas, &ImageCanvas::setGrid);
    connect(crosshair, &QAction::toggled, &canvas, &ImageCanvas::setCrosshair);
}

void ViewerActions::createToolActions(ImageCanvas &canvas)
{
    struct Choice
    {
        QString text;
        int key;
        Kind icon;
        ImageCanvas::Tool tool;
    };
    const Choice choices[] = {
        {tr("&Move the picture"), Qt::Key_F6, Kind::Pan, ImageCanvas::Tool::Pan},
        {tr("Draw a re&gion"), Qt::Key_F7, Kind::Region, ImageCanvas::Tool::Region},
        {tr("Draw a li&ne"), Qt::Key_F8, Kind::Line, ImageCanvas::Tool::Line},
    };
    for (const Choice &choice : choices) {
        QAction *const action
            = createAction(this, choice.text, choice.key, ToolIcons::icon(choice.icon), true);
        action->setChecked(choice.tool == canvas.tool());
        action->setData(static_cast<int>(choice.tool));
        connect(
            action, &QAction::triggered, &canvas, [&canvas, tool = choice.tool] { canvas.setTool(tool); });
        m_tools->addAction(action);
    }
}

QAction *ViewerActions::toolAction(ImageCanvas::Tool tool) const
{
    const QList<QAction *> actions = m_tools->actions();
    for (QAction *action : actions) {
        if (action->data().toInt() == static_cast<int>(tool))
            return action;
    }
    return nullptr;
}

void ViewerActions::addToFileMenu(QMenu *menu) const
{
    menu->addActions({snapshot, record});
}

void ViewerActions::addToViewMenu(QMenu *menu) const
{
    menu->addActions({freeze});
    for (const QList<QAction *> &actions : {m_zoom, m_turns, m_tools->actions(), m_overlays}) {
        menu->addSeparator();
        menu->addActions(actions);
    }
    menu->addSeparator();
    menu->addAction(fullScreen);
}

void ViewerActions::addToCameraMenu(QMenu *menu) const
{
    menu->addActions({live, cameraSetup, corrections, newWindow});
}

void ViewerActions::addToToolBar(QToolBar *bar) const
{
    bar->addActions({live, freeze, snapshot, record});
    for (const QList<QAction *> &actions : {m_zoom, m_turns, m_tools->actions(), m_overlays}) {
        bar->addSeparator();
        bar->addActions(actions);
    }
    bar->addSeparator();
    bar->addAction(fullScreen);
}

ShortcutPage::Rows ViewerActions::canvasKeys()
{
    return {{tr("+, -"), tr("Zoom in or out")},
        {tr("0, 1"), tr("Fit the picture, or show it at its own size")},
        {tr("Arrow keys"), tr("Move the picture; in larger steps with Shift")},
        {tr("Insert"), tr("Draw a region or a line in the middle")},
        {tr("Ctrl and arrow keys"), tr("Move the drawn region or line; resize it with Shift")},
        {tr("Return"), tr("Finish the region for the camera")},
        {tr("Delete"), tr("Remove the drawn region or line")}, {tr("Wheel"), tr("Zoom at the pointer")},
        {tr("Middle button, or Space and drag"), tr("Move the picture, whatever the tool")},
        {tr("Double click"), tr("Change between the fitted picture and its own size")}};
}
