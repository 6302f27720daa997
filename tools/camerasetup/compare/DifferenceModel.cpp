#include "tools/camerasetup/compare/DifferenceModel.h"

#include "tools/camerasetup/compare/SettingTexts.h"
#include "tools/kit/widgets/ToolTip.h"

#include <QColor>

#include <algorithm>
#include <map>
#include <utility>

namespace {

// The colours of the style sheet.
const QColor differentColour(0xf5, 0x9e, 0x0b);
const QColor oneSidedColour(0x64, 0xb5, 0xf6);
const QColor minorColour(0x94, 0xa3, 0xb8);

constexpr quintptr categoryId = 0; // The internal ID of a feature's index is its category's number + 1.

bool isMissing(FeatureDifference difference, int column)
{
    return (column == DifferenceModel::LeftColumn && difference == FeatureDifference::OnlyRight)
        || (column == DifferenceModel::RightColumn && difference == FeatureDifference::OnlyLeft);
}

QVariant colour(const DifferenceRow &row, int column)
{
    const FeatureDifference difference = row.feature.difference;
    if (row.feature.isIgnorable || difference == FeatureDifference::Equal || isMissing(difference, column))
        return minorColour;
    if (column == DifferenceModel::FeatureColumn)
        return {};
    return difference == FeatureDifference::Different ? differentColour : oneSidedColour;
}

} // namespace

void DifferenceModel::setComparison(
    std::vector<DifferenceRow> rows, const QString &leftTitle, const QString &rightTitle)
{
    m_rows = std::move(rows);
    m_titles[0] = leftTitle;
    m_titles[1] = rightTitle;
    m_checked.clear();
    rebuild();
    emit checkedChanged();
}

void DifferenceModel::setFilter(const ComparisonFilter &filter)
{
    m_filter = filter;
    rebuild();
}

void DifferenceModel::rebuild()
{
    beginResetModel();
    m_categories.clear();
    std::map<QString, std::size_t> numbers;
    for (std::size_t number = 0; number < m_rows.size(); ++number) {
        const DifferenceRow &row = m_rows[number];
        if (!m_filter.shows(row))
            continue;
        const auto [position, isNew] = numbers.emplace(row.category, m_categories.size());
        if (isNew)
            m_categories.push_back({row.category, {}, false});
        Category &category = m_categories[position->second];
        category.rows.push_back(number);
        category.canCheck = category.canCheck || canCopy(row.feature);
    }
    endResetModel();
}

bool DifferenceModel::canCopy(const ComparedFeature &feature)
{
    return feature.difference == FeatureDifference::Different
        || feature.difference == FeatureDifference::OnlyLeft;
}

const DifferenceRow *DifferenceModel::row(const QModelIndex &index) const
{
    return index.isValid() && index.internalId() != categoryId ? &m_rows[rowNumber(index)] : nullptr;
}

std::vector<const DifferenceRow *> DifferenceModel::shownRows() const
{
    std::vector<const DifferenceRow *> rows;
    for (const Category &category : m_categories) {
        for (const std::size_t number : category.rows)
            rows.push_back(&m_rows[number]);
    }
    return rows;
}

std::vector<const DifferenceRow *> DifferenceModel::checkedRows() const
{
    std::vector<const DifferenceRow *> rows;
    for (const std::size_t number : m_checked)
        rows.push_back(&m_rows[number]);
    return rows;
}

std::vector<const DifferenceRow *> DifferenceModel::differentRows() const
{
    std::vector<const DifferenceRow *> rows;
    for (const DifferenceRow &row : m_rows) {
        if (canCopy(row.feature) && !row.feature.isIgnorable)
            rows.push_back(&row);
    }
    return rows;
}

std::size_t DifferenceModel::rowNumber(const QModelIndex &index) const
{
    return m_categories[index.internalId() - 1].rows[std::size_t(index.row())];
}

QModelIndex DifferenceModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : categoryId);
}

QModelIndex DifferenceModel::parent(const QModelIndex &index) const
{
    const bool isRow = index.isValid() && index.internalId() != categoryId;
    return isRow ? createIndex(int(index.internalId()) - 1, 0, categoryId) : QModelIndex();
}

int DifferenceModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_categories.size());
    const bool isCategory = parent.internalId() == categoryId && parent.column() == 0;
    return isCategory ? int(m_categories[std::size_t(parent.row())].rows.size()) : 0;
}

int DifferenceModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant DifferenceModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (index.internalId() == categoryId)
        return categoryData(m_categories[std::size_t(index.row())], index.column(), role);
    return rowData(rowNumber(index), index.column(), role);
}

QVariant DifferenceModel::categoryData(const Category &category, int column, int role) const
{
    if (column != FeatureColumn)
        return {};
    if (role == Qt::CheckStateRole && category.canCheck)
        return checkState(category);
    if (role == Qt::DisplayRole)
        return tr("%1 (%2)").arg(category.title).arg(category.rows.size());
    return {};
}

QVariant DifferenceModel::rowData(std::size_t number, int column, int role) const
{
    const DifferenceRow &row = m_rows[number];
    switch (role) {
    case Qt::DisplayRole:
        return cellText(row, column);
    case Qt::ForegroundRole:
        return colour(row, column);
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(row, column));
    case Qt::AccessibleTextRole:
        return column == FeatureColumn
            ? tr("%1; left: %2; right: %3")
                  .arg(row.title, cellText(row, LeftColumn), cellText(row, RightColumn))
            : cellText(row, column);
    case Qt::CheckStateRole:
        if (column == FeatureColumn && canCopy(row.feature))
            return m_checked.count(number) > 0 ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

QString DifferenceModel::cellText(const DifferenceRow &row, int column)
{
    if (isMissing(row.feature.difference, column))
        return tr("(missing)");
    const QString texts[] = {row.title, row.left, row.right};
    return texts[column];
}

QString DifferenceModel::toolTip(const DifferenceRow &row, int column)
{
    const ComparedFeature &feature = row.feature;
    if (column == LeftColumn)
        return QString::fromStdString(feature.left);
    if (column == RightColumn)
        return QString::fromStdString(feature.right);
    const QString name = SettingTexts::rawTitle(feature.name, feature.selectors);
    return feature.isIgnorable ? tr("%1\nThis value belongs to one camera or one moment.").arg(name) : name;
}

Qt::CheckState DifferenceModel::checkState(const Category &category) const
{
    std::size_t possible = 0;
    std::size_t checked = 0;
    for (const std::size_t number : category.rows) {
        possible += canCopy(m_rows[number].feature);
        checked += m_checked.count(number);
    }
    if (checked == 0)
        return Qt::Unchecked;
    return checked == possible ? Qt::Checked : Qt::PartiallyChecked;
}

void DifferenceModel::check(std::size_t number, bool isChecked)
{
    if (!canCopy(m_rows[number].feature))
        return;
    if (isChecked)
        m_checked.insert(number);
    else
        m_checked.erase(number);
}

bool DifferenceModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid() || index.column() != FeatureColumn)
        return false;
    const bool isChecked = value.toInt() != Qt::Unchecked;
    const bool isRow = index.internalId() != categoryId;
    const QModelIndex category = isRow ? index.parent() : index;
    const auto &rows = m_categories[std::size_t(category.row())].rows;
    if (isRow)
        check(rows[std::size_t(index.row())], isChecked);
    else
        for (const std::size_t number : rows)
            check(number, isChecked);
    emit dataChanged(category, category, {Qt::CheckStateRole});
    emit dataChanged(this->index(0, FeatureColumn, category),
        this->index(int(rows.size()) - 1, FeatureColumn, category), {Qt::CheckStateRole});
    emit checkedChanged();
    return true;
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == FeatureColumn ? tr("Feature") : m_titles[section - 1];
}

Qt::ItemFlags DifferenceModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (data(index, Qt::CheckStateRole).isValid())
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}
