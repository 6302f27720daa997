#pragma once

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class QMenu;

/// Answers every message box and menu that opens while it lives, and remembers what they said.
/// A modal loop blocks its caller, so it looks around on a timer inside that loop.
class ModalCatcher : public QObject
{
    Q_OBJECT

public:
    struct Box
    {
        QString title;
        QString text;
        QMessageBox::Icon icon;
        QMessageBox::StandardButtons buttons;
        QPointer<QWidget> parent;
    };

    struct Menu
    {
        QStringList actions; ///< Texts; a separator has an empty one.
        QPoint position; ///< Top left, global.
        QPointer<QWidget> parent;
    };

    ModalCatcher();

    /// Menus: the text of the action to choose; null closes the menu with Escape. Boxes are always closed by
    /// their first button.
    QString choose;

    /// Called before a box is answered, while it is open.
    std::function<void(QMessageBox &)> onBox;

    const QList<Box> &boxes() const { return m_boxes; }
    const QList<Menu> &menus() const { return m_menus; }

    /// Modal dialogs other than message boxes, by class name. They are rejected.
    const QStringList &otherDialogs() const { return m_otherDialogs; }

private:
    void look();
    void answerBox(QMessageBox *box);
    void answerMenu(QMenu *menu);

    QTimer m_timer;
    QList<Box> m_boxes;
    QList<Menu> m_menus;
    QStringList m_otherDialogs;
    QPointer<QWidget> m_answered; // One answer each, also while it closes.
};
