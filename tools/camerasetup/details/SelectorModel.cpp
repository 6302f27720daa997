#include "tools/camerasetup/details/SelectorModel.h"

#include "tools/camerasetup/values/ValueText.h"
#include "tools/kit/editors/LockAdvice.h"

#include <QColor>

#include <algorithm>

using namespace CvxCPP;

namespace {

constexpr QRgb lockedColour = 0xff94a3b8;

} // namespace

SelectorModel::SelectorModel(FeatureClient &client, QObject *parent)
    : QAbstractTableModel(parent), m_client(client)
{ }

void SelectorModel::setRows(const NodeInfo &selector, const QVector<NodeInfo> &features)
{
    beginResetModel();
    m_selector = selector;
    m_features = features;
    m_columns.clear();
    endResetModel();
}

void SelectorModel::setValues(const SelectorValues &values)
{
    const bool isSame = std::equal(values.columns.begin(), values.columns.end(), m_columns.begin(),
        m_columns.end(),
        [](const SelectorColumn &left, const SelectorColumn &right) { return left.value == right.value; });
    if (isSame && !m_columns.empty()) { // An open editor stays.
        m_columns = values.columns;
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_columns = values.columns;
    endResetModel();
}

void SelectorModel::clear()
{
    beginResetModel();
    m_features.clear();
    m_columns.clear();
    endResetModel();
}

const NodeState &SelectorModel::state(const QModelIndex &index) const
{
    return m_columns[static_cast<std::size_t>(index.column())].states[static_cast<std::size_t>(index.row())];
}

const std::string &SelectorModel::selectorValue(const QModelIndex &index) const
{
    return m_columns[static_cast<std::size_t>(index.column())].value;
}

int SelectorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_features.size();
}

int SelectorModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant SelectorModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return valueText(info(index), state(index));
    if (role == Qt::EditRole)
        return QVariant::fromValue(state(index).value);
    if (role == Qt::ForegroundRole)
        return isEditable(index) ? QVariant() : QColor::fromRgb(lockedColour);
    if (role == Qt::ToolTipRole)
        return lockReason(index);
    if (role == Qt::AccessibleDescriptionRole)
        return QStringLiteral("%1, %2").arg(columnTitle(index.column()), lockReason(index));
    return {};
}

QVariant SelectorModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? columnTitle(section)
                                         : QString::fromStdString(m_features[section].displayName);
}

QString SelectorModel::columnTitle(int column) const
{
    return settingValueText(&m_selector, m_columns[static_cast<std::size_t>(column)].value);
}

/// Returns false for cells that are grey; they can be reached, because their tool tips say why.
bool SelectorModel::isEditable(const QModelIndex &index) const
{
    const LockReason reason = state(index).lockReason;
    return reason == LockReason::None || reason == LockReason::StreamRunning;
}

Qt::ItemFlags SelectorModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const NodeType type = info(index).type;
    if (!isEditable(index) || type == NodeType::Register || type == NodeType::Command)
        return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable;
}

bool SelectorModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid())
        return false;
    if (!value.canConvert<NodeValue>()) {
        emit refused(index, value.toString());
        return false;
    }
    const auto wanted = value.value<NodeValue>();
    if (wanted != state(index).value)
        emit changeRequested(index, wanted);
    return true;
}

QString SelectorModel::lockReason(const QModelIndex &index) const
{
    const QString locking = QString::fromStdString(state(index).lockingNode);
    // The value of the responsible feature may be another one under this value of the selector.
    return lockAdvice(state(index), m_client.info(locking), nullptr).reason;
}
