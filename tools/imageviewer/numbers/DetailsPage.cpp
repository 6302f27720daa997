#include "tools/imageviewer/numbers/DetailsPage.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

const QColor warningColor(0xf5, 0x9e, 0x0b);

QTableWidget *createTable(QWidget *parent)
{
    auto *const table = new QTableWidget(0, 2, parent);
    table->setObjectName(QStringLiteral("numbers"));
    table->setAccessibleName(DetailsPage::tr("Numbers of the stream"));
    table->horizontalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    return table;
}

} // namespace

DetailsPage::DetailsPage(StreamMonitor &monitor, QWidget *parent)
    : QWidget(parent),
      m_monitor(monitor),
      m_table(createTable(this)),
      m_graph(new RateGraph(this)),
      m_advice(createAdvice())
{
    auto *const copy = new QPushButton(tr("Copy as te&xt"), this);
    copy->setToolTip(tr("Copies all numbers to the clipboard."));
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_advice);
    layout->addWidget(m_graph);
    layout->addWidget(m_table, 1);
    layout->addWidget(copy, 0, Qt::AlignRight);
    connect(copy, &QPushButton::clicked, this, &DetailsPage::copyAsText);
    connect(&m_monitor, &StreamMonitor::updated, this, &DetailsPage::update);
}

QWidget *DetailsPage::createAdvice()
{
    auto *const advice = new QWidget(this);
    advice->setObjectName(QStringLiteral("lossAdvice"));
    m_adviceText = new QLabel(advice);
    m_adviceText->setProperty("role", QStringLiteral("warning"));
    m_adviceText->setWordWrap(true);
    m_adviceText->setTextFormat(Qt::PlainText);
    m_adviceText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_commandBox = new QWidget(advice);
    m_command = new QLineEdit(m_commandBox);
    m_command->setReadOnly(true);
    m_command->setAccessibleName(tr("Command that corrects the cause"));
    auto *const copy = new QPushButton(tr("Copy comma&nd"), m_commandBox);
    auto *const commandLayout = new QHBoxLayout(m_commandBox);
    commandLayout->setContentsMargins({});
    commandLayout->addWidget(m_command, 1);
    commandLayout->addWidget(copy);
    auto *const layout = new QVBoxLayout(advice);
    layout->setContentsMargins({});
    layout->addWidget(m_adviceText);
    layout->addWidget(m_commandBox);
    connect(copy, &QPushButton::clicked, this, &DetailsPage::copyCommand);
    advice->hide();
    return advice;
}

void DetailsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showFigures(m_monitor.figures(), m_monitor.history(), m_monitor.advice());
}

void DetailsPage::update()
{
    if (isVisible())
        showFigures(m_monitor.figures(), m_monitor.history(), m_monitor.advice());
}

void DetailsPage::showFigures(
    const StreamFigures &figures, const RateHistory &history, const LossAdvice &advice)
{
    m_figures = figures;
    showRows(StreamNumbers(figures, locale()).rows());
    m_graph->setHistory(history);
    m_adviceText->setText(advice.text);
    if (m_command->text() != advice.command) {
        m_command->setText(advice.command);
        m_command->setToolTip(advice.command);
        m_command->setCursorPosition(0);
    }
    m_commandBox->setVisible(!advice.command.isEmpty());
    m_advice->setVisible(!advice.text.isEmpty());
}

void DetailsPage::showRows(const QVector<NumberRow> &rows)
{
    m_table->setRowCount(rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        const QString texts[] = {rows[row].name, rows[row].value};
        for (int column = 0; column < m_table->columnCount(); ++column) {
            QTableWidgetItem *item = m_table->item(row, column);
            if (!item) {
                item = new QTableWidgetItem;
                m_table->setItem(row, column, item);
                item->setTextAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
            }
            item->setText(texts[column]);
            item->setToolTip(rows[row].explanation);
            item->setData(Qt::ForegroundRole, rows[row].isLoss ? QVariant(warningColor) : QVariant());
        }
    }
}

void DetailsPage::copyAsText()
{
    QApplication::clipboard()->setText(StreamNumbers(m_figures, locale()).plainText());
}

void DetailsPage::copyCommand()
{
    QApplication::clipboard()->setText(m_command->text());
}
