#include "tests/support/ModalCatcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QTest>

ModalCatcher::ModalCatcher()
{
    connect(&m_timer, &QTimer::timeout, this, &ModalCatcher::look);
    m_timer.start(5);
}

void ModalCatcher::look()
{
    if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
        if (menu != m_answered)
            answerMenu(menu);
        return;
    }
    QWidget *modal = QApplication::activeModalWidget();
    if (modal == m_answered)
        return;
    m_answered = modal; // Null once nothing is open: a menu may open a second time.
    if (auto *box = qobject_cast<QMessageBox *>(modal)) {
        answerBox(box);
    } else if (auto *dialog = qobject_cast<QDialog *>(modal)) {
        m_otherDialogs.append(QString::fromLatin1(dialog->metaObject()->className()));
        dialog->reject();
    }
}

void ModalCatcher::answerBox(QMessageBox *box)
{
    m_boxes.append(
        {box->windowTitle(), box->text(), box->icon(), box->standardButtons(), box->parentWidget()});
    if (onBox)
        onBox(*box);
    const QList<QAbstractButton *> buttons = box->buttons();
    if (buttons.isEmpty())
        box->reject();
    else
        buttons.first()->click();
}

void ModalCatcher::answerMenu(QMenu *menu)
{
    m_answered = menu;
    Menu seen{{}, menu->pos(), menu->parentWidget()};
    QAction *chosen = nullptr;
    for (QAction *action : menu->actions()) {
        seen.actions.append(action->text());
        if (!choose.isNull() && action->text() == choose)
            chosen = action;
    }
    m_menus.append(seen);
    if (!chosen) {
        QTest::keyClick(menu, Qt::Key_Escape);
        return;
    }
    menu->setActiveAction(chosen);
    QTest::keyClick(menu, Qt::Key_Return);
}
