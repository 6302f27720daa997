#include "tools/camerasetup/compare/DifferenceView.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

DifferenceView::DifferenceView(QWidget *parent) : QWidget(parent)
{
    m_model = new DifferenceModel(this);
    m_tree = createTree();
    m_hint = new QLabel(this);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setProperty("role", QStringLiteral("secondary"));
    m_summary = new QLabel(this);
    m_summary->setWordWrap(true);
    m_summary->setProperty("role", QStringLiteral("heading"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary);
    layout->addWidget(createFilters());
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_hint, 1);
}

QTreeView *DifferenceView::createTree()
{
    auto *const tree = new QTreeView(this);
    tree->setModel(m_model);
    tree->setAccessibleName(tr("Differences"));
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setExpandsOnDoubleClick(false);
    tree->header()->setStretchLastSection(true);
    connect(tree, &QTreeView::activated, this, &DifferenceView::requestFeature); // Also a double click.
    connect(
        tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &DifferenceView::choiceChanged);
    connect(m_model, &DifferenceModel::checkedChanged, this, &DifferenceView::choiceChanged);
    connect(m_model, &DifferenceModel::modelReset, tree, &QTreeView::expandAll);
    return tree;
}

QWidget *DifferenceView::createFilters()
{
    auto *const filters = new QWidget(this);
    m_search = new QLineEdit(filters);
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search the differences"));
    m_search->setClearButtonEnabled(true);
    m_equal = new QCheckBox(tr("Also e&qual"), filters);
    m_equal->setToolTip(tr("Shows the settings that both sides have in common too."));
    m_ignorable = new QCheckBox(tr("Also those of one camera or one &moment"), filters);
    m_ignorable->setToolTip(tr(
        "Shows values that differ between cameras with the same settings too: serial numbers, temperatures, "
        "counters."));
    connect(m_search, &QLineEdit::textChanged, this, &DifferenceView::applyFilter);
    connect(m_equal, &QCheckBox::toggled, this, &DifferenceView::applyFilter);
    connect(m_ignorable, &QCheckBox::toggled, this, &DifferenceView::applyFilter);
    auto *const layout = new QHBoxLayout(filters);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_equal);
    layout->addWidget(m_ignorable);
    return filters;
}

void DifferenceView::setComparison(
    std::vector<DifferenceRow> rows, const QString &leftTitle, const QString &rightTitle)
{
    m_isComplete = true;
    m_counts = ComparisonCounts::of(rows);
    m_model->setComparison(std::move(rows), leftTitle, rightTitle);
    showSummary();
}

void DifferenceView::clear(const QString &hint)
{
    m_isComplete = false;
    m_counts = {};
    m_unreadHint = hint;
    m_model->setComparison({}, {}, {});
    showSummary();
}

/// Keeps for each column the same part of the width as before; at first, the feature has the largest part.
void DifferenceView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int before = event->oldSize().width();
    for (const int column : {DifferenceModel::FeatureColumn, DifferenceModel::LeftColumn}) {
        const double part = column == DifferenceModel::FeatureColumn ? 0.46 : 0.26;
        const int width = before > 0 ? m_tree->columnWidth(column) * event->size().width() / before
                                     : int(part * event->size().width());
        m_tree->setColumnWidth(column, width);
    }
}

void DifferenceView::applyFilter()
{
    m_model->setFilter({m_equal->isChecked(), m_ignorable->isChecked(), m_search->text()});
    showSummary();
    emit choiceChanged(); // The selection is gone.
}

QString DifferenceView::summary() const
{
    return m_counts.summary(m_model->filter());
}

QString DifferenceView::emptyHint() const
{
    if (!m_isComplete)
        return m_unreadHint;
    return m_search->text().trimmed().isEmpty() ? tr("There is no difference to show.")
                                                : tr("Nothing that is shown contains the text.");
}

void DifferenceView::showSummary()
{
    const bool isEmpty = m_model->rowCount() == 0;
    m_tree->setVisible(!isEmpty);
    m_hint->setVisible(isEmpty);
    m_hint->setText(emptyHint());
    m_summary->setText(m_isComplete ? summary() : QString());
    m_summary->setVisible(m_isComplete);
}

std::vector<const DifferenceRow *> DifferenceView::selectedRows() const
{
    std::vector<const DifferenceRow *> rows;
    for (const QModelIndex &index : m_tree->selectionModel()->selectedRows()) {
        const DifferenceRow *const row = m_model->row(index);
        if (row && DifferenceModel::canCopy(row->feature))
            rows.push_back(row);
    }
    return rows;
}

void DifferenceView::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void DifferenceView::requestFeature(const QModelIndex &index)
{
    if (const DifferenceRow *const row = m_model->row(index))
        emit featureRequested(QString::fromStdString(row->feature.name));
    else
        m_tree->setExpanded(index, !m_tree->isExpanded(index));
}
