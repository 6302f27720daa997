#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QtTest>

#include <functional>

/// Records and closes every message box and menu that opens during its lifetime. A message box is closed with
/// its first button. A modal dialog blocks its caller in a nested event loop, so a timer finds the dialog.
class ModalCatcher
{
public:
    struct Box
    {
        QString title, text;
        QMessageBox::Icon icon;
        QMessageBox::StandardButtons buttons;
        QPointer<QWidget> parent;
    };

    struct Menu
    {
        QStringList actions; ///< The strings of the entries; empty for a separator.
        QPoint position; ///< Top left corner on the screen.
        QPointer<QWidget> parent;
    };

    ModalCatcher()
    {
        m_timer.callOnTimeout([this] { answerOpenDialog(); });
        m_timer.start(5);
    }

    /// The string of the menu entry to choose. If the string is null, Escape closes the menu.
    QString choose;

    /// Called for each open message box before its button is clicked.
    std::function<void(QMessageBox &)> onBox = [](QMessageBox &) {};

    const QList<Box> &boxes() const { return m_boxes; }
    const QList<Menu> &menus() const { return m_menus; }

private:
    void answerOpenDialog()
    {
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *open = popup ? popup : QApplication::activeModalWidget();
        if (open == m_answered)
            return;
        // Null while nothing is open. Otherwise a menu that opens again would seem to be answered already.
        m_answered = open;
        if (auto *menu = qobject_cast<QMenu *>(open))
            answerMenu(menu);
        else if (auto *box = qobject_cast<QMessageBox *>(open))
            answerBox(box);
    }

    void answerMenu(QMenu *menu)
    {
        m_menus.append({{}, menu->pos(), menu->parentWidget()});
        QAction *chosen = nullptr;
        for (QAction *action : menu->actions()) {
            m_menus.last().actions.append(action->text());
            if (!choose.isNull() && action->text() == choose)
                chosen = action;
        }
        menu->setActiveAction(chosen);
        QTest::keyClick(menu, chosen ? Qt::Key_Return : Qt::Key_Escape);
    }

    void answerBox(QMessageBox *box)
    {
        m_boxes.append(
            {box->windowTitle(), box->text(), box->icon(), box->standardButtons(), box->parentWidget()});
        onBox(*box);
        box->buttons().first()->click();
    }

    QTimer m_timer;
    QList<Box> m_boxes;
    QList<Menu> m_menus;
    QPointer<QWidget> m_answered; // A dialog that is closing must not be handled again.
};
