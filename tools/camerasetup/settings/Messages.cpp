#include "tools/camerasetup/settings/Messages.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QMessageBox *createBox(QMessageBox::Icon icon, const QString &title, const QString &text, QWidget *parent)
{
    auto *const box = new QMessageBox(icon, title, text, QMessageBox::NoButton, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    return box;
}

} // namespace

void showFailure(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox *const box = createBox(QMessageBox::Warning, title, text, parent);
    box->setObjectName(QStringLiteral("failure"));
    box->addButton(QMessageBox::Ok);
    box->open();
}

void showNotes(QWidget *parent, const QString &title, const QString &text, const QStringList &notes)
{
    auto *const dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(QStringLiteral("notes"));
    dialog->setWindowTitle(title);
    dialog->resize(560, 320);
    auto *const label = new QLabel(text, dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto *const list = new QPlainTextEdit(notes.join(QLatin1Char('\n')), dialog);
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setAccessibleName(QCoreApplication::translate("Messages", "Remarks"));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    auto *const layout = new QVBoxLayout(dialog);
    layout->addWidget(label);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
    dialog->open();
    buttons->button(QDialogButtonBox::Ok)->setFocus();
}

void askToOverwrite(QWidget *parent, const QString &title, const QString &text, const QString &acceptText,
    QObject *context, const std::function<void()> &accepted)
{
    QMessageBox *const box = createBox(QMessageBox::Warning, title, text, parent);
    box->setObjectName(QStringLiteral("question"));
    QPushButton *const accept = box->addButton(acceptText, QMessageBox::AcceptRole);
    box->setDefaultButton(box->addButton(QMessageBox::Cancel));
    QObject::connect(accept, &QPushButton::clicked, context, accepted);
    box->open();
}
