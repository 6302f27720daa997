#pragma once

#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/window/ShortcutPage.h"

#include <QAction>
#include <QActionGroup>
#include <QObject>

class QMenu;
class QToolBar;

/// The actions of the Image Viewer's menus and tool bar, with their texts, icons and shortcuts. The window
/// connects those that concern more than the canvas.
class ViewerActions : public QObject
{
    Q_OBJECT

public:
    ViewerActions(ImageCanvas &canvas, QObject *parent);

    QAction *const live; ///< Checkable.
    QAction *const freeze; ///< Checkable.
    QAction *const snapshot;
    QAction *const record; ///< Checkable.
    QAction *const clipMarks; ///< Checkable.
    QAction *const grid; ///< Checkable.
    QAction *const crosshair; ///< Checkable.
    QAction *const fullScreen; ///< Checkable.
    QAction *const newWindow;
    QAction *const cameraSetup;
    QAction *const corrections;

    void addToFileMenu(QMenu *menu) const;
    void addToViewMenu(QMenu *menu) const;
    void addToCameraMenu(QMenu *menu) const;
    void addToToolBar(QToolBar *bar) const;

    /// Returns the action that selects the tool; null for Pick, which is a step of the white balance.
    QAction *toolAction(ImageCanvas::Tool tool) const;

    /// Returns the keys that the canvas understands while it has the focus.
    static ShortcutPage::Rows canvasKeys();

private:
    void createViewActions(ImageCanvas &canvas);
    void createToolActions(ImageCanvas &canvas);

    QList<QAction *> m_zoom;
    QList<QAction *> m_turns;
    const QList<QAction *> m_overlays;
    QActionGroup *const m_tools; ///< What dragging in the picture does.
};
