#include "tools/kit/window/ShortcutPage.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QRegularExpression>
#include <QTableWidget>
#include <QVBoxLayout>

ShortcutPage::ShortcutPage(const QWidget &window, const Rows &others, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Keyboard shortcuts"));
    const Rows rows = rowsOf(window) + others;
    auto *table = new QTableWidget(rows.size(), 2, this);
    table->setHorizontalHeaderLabels({tr("Keys"), tr("What they do")});
    table->setAccessibleName(windowTitle());
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    for (int row = 0; row < rows.size(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(rows.at(row).first));
        table->setItem(row, 1, new QTableWidgetItem(rows.at(row).second));
    }
    table->resizeColumnsToContents();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(table);
    layout->addWidget(buttons);
    resize(560, 620);
}

ShortcutPage::Rows ShortcutPage::rowsOf(const QWidget &window)
{
    Rows rows;
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (const QAction *action : actions) {
        const QString keys = QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText);
        if (!keys.isEmpty())
            rows.append({keys, plainText(action->text())});
    }
    return rows;
}

QString ShortcutPage::plainText(QString text)
{
    static const QRegularExpression appendedKey(QStringLiteral(R"(\(&.\))"));
    return text.remove(appendedKey).remove(QLatin1Char('&'));
}
