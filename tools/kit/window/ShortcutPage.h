#pragma once

#include <QDialog>
#include <QPair>
#include <QString>
#include <QVector>

/// Lists the keys of a window: the shortcuts of its actions, and keys that have no action.
class ShortcutPage : public QDialog
{
    Q_OBJECT

public:
    using Rows = QVector<QPair<QString, QString>>; ///< Keys and what they do.

    /// @param window The window whose actions are listed, in the order of its menus.
    /// @param others Keys without an action.
    ShortcutPage(const QWidget &window, const Rows &others, QWidget *parent);

    /// Returns the actions of the window that have a shortcut.
    static Rows rowsOf(const QWidget &window);

    /// Returns the text of an action without the mark of its access key, which Chinese, Japanese and Korean
    /// texts append: "(&F)".
    static QString plainText(QString text);
};
