#include "tools/camerasetup/history/HistoryPanel.h"

#include "tools/camerasetup/history/HistoryModel.h"
#include "tools/camerasetup/values/ChangeHistory.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

QTableView *createTable(HistoryModel *model, QWidget *parent)
{
    auto *const table = new QTableView(parent);
    table->setObjectName(QStringLiteral("historyTable"));
    table->setAccessibleName(HistoryPanel::tr("Changes since the camera was opened"));
    table->setModel(model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false); // The key leaves the table.
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    table->horizontalHeader()->setSectionResizeMode(HistoryModel::Feature, QHeaderView::Stretch);
    return table;
}

QToolButton *createButton(QAction *action, QWidget *parent)
{
    auto *const button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

HistoryPanel::HistoryPanel(ChangeHistory &history, QWidget *parent)
    : QWidget(parent),
      m_history(history),
      m_model(new HistoryModel(history, this)),
      m_table(createTable(m_model, this)),
      m_undo(new QAction(tr("Undo"), this)),
      m_redo(new QAction(tr("Redo"), this)),
      m_export(new QPushButton(tr("Export as script…"), this)),
      m_problem(new QLabel(this))
{
    m_export->setToolTip(tr("Writes a shell script that makes these changes again with cvxctl."));
    m_problem->setProperty("severity", QStringLiteral("error"));
    m_problem->setWordWrap(true);
    m_problem->hide();
    auto *const copy = new QAction(tr("Copy"), m_table);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    m_table->addAction(copy);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(createButton(m_undo, this));
    buttons->addWidget(createButton(m_redo, this));
    buttons->addStretch();
    buttons->addWidget(m_export);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addWidget(m_problem);
    layout->addLayout(buttons);

    connect(m_undo, &QAction::triggered, &history, &ChangeHistory::undo);
    connect(m_redo, &QAction::triggered, &history, &ChangeHistory::redo);
    connect(m_export, &QPushButton::clicked, this, &HistoryPanel::exportScript);
    connect(copy, &QAction::triggered, this, &HistoryPanel::copyRows);
    connect(m_table, &QTableView::activated, this, &HistoryPanel::requestFeature);
    connect(m_model, &HistoryModel::rowsInserted, this, &HistoryPanel::showNewRows);
    connect(&history, &ChangeHistory::changed, this, &HistoryPanel::follow);
    follow();
    showNewRows();
}

void HistoryPanel::follow()
{
    const auto text = [](const QString &action, const QString &title) {
        return title.isEmpty() ? action : action + QStringLiteral(": ") + title;
    };
    m_undo->setEnabled(m_history.canUndo());
    m_undo->setToolTip(text(tr("Undo"), m_history.undoTitle()));
    m_redo->setEnabled(m_history.canRedo());
    m_redo->setToolTip(text(tr("Redo"), m_history.redoTitle()));
    m_export->setEnabled(!m_history.entries().isEmpty());
}

void HistoryPanel::showNewRows()
{
    for (const int column : {HistoryModel::Time, HistoryModel::OldValue, HistoryModel::NewValue})
        m_table->resizeColumnToContents(column);
    m_table->scrollToBottom();
}

void HistoryPanel::requestFeature(const QModelIndex &index)
{
    emit featureRequested(m_model->featureName(index.row()));
}

void HistoryPanel::copyRows()
{
    QModelIndexList selected = m_table->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    QStringList lines;
    for (const QModelIndex &row : selected) {
        QStringList cells;
        for (int column = 0; column < m_model->columnCount(); ++column)
            cells.append(row.siblingAtColumn(column).data(HistoryModel::rawTextRole).toString().simplified());
        lines.append(cells.join(QLatin1Char('\t')));
    }
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

void HistoryPanel::exportScript()
{
    QFileDialog dialog(this, tr("Export the changes"), QString(), tr("Shell scripts (*.sh)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("sh"));
    dialog.selectFile(QStringLiteral("camera-changes.sh"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString problem = writeScript(dialog.selectedFiles().constFirst());
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

QString HistoryPanel::writeScript(const QString &path) const
{
    QSaveFile file(path);
    const QByteArray script = m_history.script().toUtf8();
    const bool isWritten
        = file.open(QIODevice::WriteOnly) && file.write(script) == script.size() && file.commit();
    if (!isWritten)
        return tr("The script \"%1\" cannot be written: %2").arg(path, file.errorString());
    QFile::Permissions permissions = QFile::permissions(path);
    constexpr std::pair<QFile::Permission, QFile::Permission> classes[]
        = {{QFile::ReadOwner, QFile::ExeOwner}, {QFile::ReadGroup, QFile::ExeGroup},
            {QFile::ReadOther, QFile::ExeOther}};
    for (const auto &[read, execute] : classes)
        permissions.setFlag(execute, permissions.testFlag(read));
    QFile::setPermissions(path, permissions);
    return {};
}
