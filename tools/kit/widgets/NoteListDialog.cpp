#include "tools/kit/widgets/NoteListDialog.h"

#include "tools/kit/widgets/ToolTip.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

NoteListDialog::NoteListDialog(
    const QString &title, const QString &sentence, const QVector<Row> &rows, QWidget *parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("notes"));
    setWindowTitle(title);
    auto *const text = new QLabel(sentence, this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    m_list = new QTreeWidget(this);
    m_list->setAccessibleName(title);
    m_list->setRootIsDecorated(false);
    m_list->setWordWrap(true);
    m_list->setHeaderLabels({tr("Feature"), tr("Reason")});
    for (const Row &row : rows) {
        auto *const item = new QTreeWidgetItem(m_list, {row.feature, row.text});
        item->setToolTip(1, plainToolTip(row.text));
    }
    m_list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto *const copy = buttons->addButton(tr("Copy"), QDialogButtonBox::ActionRole);
    connect(copy, &QPushButton::clicked, this, &NoteListDialog::copyRows);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    resize(640, 320);
}

void NoteListDialog::copyRows()
{
    QString text;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem &item = *m_list->topLevelItem(row);
        text += item.text(0) + QLatin1Char('\t') + item.text(1) + QLatin1Char('\n');
    }
    QApplication::clipboard()->setText(text);
}
