#include "tools/kit/widgets/Messages.h"

#include <QMessageBox>
#include <QPushButton>

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

QMessageBox *askToOverwrite(QWidget *parent, const QString &title, const QString &text,
    const QString &acceptText, QObject *context, const std::function<void()> &accepted)
{
    QMessageBox *const box = createBox(QMessageBox::Warning, title, text, parent);
    box->setObjectName(QStringLiteral("question"));
    QPushButton *const accept = box->addButton(acceptText, QMessageBox::AcceptRole);
    box->setDefaultButton(box->addButton(QMessageBox::Cancel));
    QObject::connect(accept, &QPushButton::clicked, context, accepted);
    box->open();
    return box;
}
