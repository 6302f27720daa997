#include "tools/camerasetup/tree/FeatureTreeModel.h"

#include "tools/camerasetup/values/ValueText.h"
#include "tools/kit/editors/LockAdvice.h"

#include <QColor>

#include <tuple>
#include <utility>

using namespace CvxCPP;

namespace {

constexpr QRgb greyedColour = 0xff5b6b7f;
constexpr QRgb secondaryColour = 0xff94a3b8;
constexpr QRgb warningColour = 0xfff59e0b;

bool areEqual(const EnumerationEntry &left, const EnumerationEntry &right)
{
    return std::tie(left.name, left.displayName) == std::tie(right.name, right.displayName);
}

bool areEqual(const NodeInfo &left, const NodeInfo &right)
{
    const auto parts = [](const NodeInfo &info) {
        return std::tie(info.name, info.displayName, info.category, info.toolTip, info.description, info.unit,
            info.type, info.visibility, info.representation, info.selectors);
    };
    return parts(left) == parts(right)
        && std::equal(left.entries.begin(), left.entries.end(), right.entries.begin(), right.entries.end(),
            [](const auto &one, const auto &other) { return areEqual(one, other); });
}

bool areEqual(const QVector<NodeInfo> &left, const QVector<NodeInfo> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](const NodeInfo &one, const NodeInfo &other) { return areEqual(one, other); });
}

bool isAbsent(const NodeState &state)
{
    return state.access == NodeAccess::NotAvailable || state.access == NodeAccess::NotImplemented;
}

QString paragraph(const QString &text)
{
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

} // namespace

FeatureTreeModel::FeatureTreeModel(FeatureClient &client, QObject *parent)
    : QAbstractItemModel(parent), m_client(client)
{
    connect(&client, &FeatureClient::nodesLoaded, this, &FeatureTreeModel::follow);
    connect(&client, &FeatureClient::nodesGone, this, &FeatureTreeModel::noteGone);
    connect(&client, &FeatureClient::stateChanged, this, &FeatureTreeModel::takeState);
    if (!client.nodes().isEmpty())
        follow();
}

void FeatureTreeModel::setMarkTests(Test isChanged, Test isFavourite)
{
    m_isChanged = std::move(isChanged);
    m_isFavourite = std::move(isFavourite);
    updateAllRows();
}

// ---- Following the camera ---------------------------------------------------------------------------------

/// Takes the features of a camera that was opened. They are the same ones if it was lost before.
void FeatureTreeModel::follow()
{
    m_isGone = false;
    const bool isSame = areEqual(m_nodes, m_client.nodes());
    if (!isSame) {
        beginResetModel();
        m_nodes = m_client.nodes();
        m_tree = FeatureTree(m_nodes);
        m_features.clear();
        m_features.reserve(m_nodes.size());
        for (int feature = m_nodes.size() - 1; feature >= 0; --feature)
            m_features.insert(name(feature), feature); // The first feature of a name counts.
    }
    m_states.clear();
    for (auto feature = m_features.cbegin(); feature != m_features.cend(); ++feature) {
        if (const NodeState *const read = m_client.state(feature.key()))
            m_states.insert(*feature, *read);
    }
    if (isSame)
        updateAllRows();
    else
        endResetModel();
}

void FeatureTreeModel::noteGone()
{
    m_isGone = true;
    updateAllRows();
}

void FeatureTreeModel::takeState(const QString &name)
{
    const int feature = m_features.value(name, FeatureTree::none);
    const NodeState *const read = m_client.state(name);
    if (feature == FeatureTree::none || !read)
        return;
    const auto known = m_states.constFind(feature);
    const bool isOther = known != m_states.constEnd() && known->value != read->value;
    m_states.insert(feature, *read);
    updateRow(feature);
    if (isOther)
        emit valueChanged(name);
}

void FeatureTreeModel::updateRow(int feature)
{
    const QModelIndex first = indexOf(feature);
    if (first.isValid())
        emit dataChanged(first, first.siblingAtColumn(columns - 1));
}

void FeatureTreeModel::updateMarks(const QStringList &names)
{
    for (const QString &name : names)
        updateRow(m_features.value(name, FeatureTree::none));
    emit marksChanged();
}

void FeatureTreeModel::updateAllRows()
{
    const auto update = [this](const std::vector<int> &siblings) {
        if (!siblings.empty())
            emit dataChanged(indexOf(siblings.front()), indexOf(siblings.back(), columns - 1));
    };
    update(m_tree.children(FeatureTree::none));
    for (int feature = 0; feature < m_nodes.size(); ++feature)
        update(m_tree.children(feature));
    emit marksChanged();
}

void FeatureTreeModel::setStreamCanPause(bool canPause)
{
    m_canPause = canPause;
    updateAllRows();
}

// ---- Questions about a feature ----------------------------------------------------------------------------

const NodeState *FeatureTreeModel::state(int feature) const
{
    const auto found = m_states.constFind(feature);
    return found == m_states.constEnd() ? nullptr : &*found;
}

QString FeatureTreeModel::lockReason(int feature) const
{
    if (info(feature).type == NodeType::Category)
        return {};
    if (m_isGone)
        return tr("The camera is not connected.");
    const NodeState *const read = state(feature);
    if (!read)
        return tr("The value was not read yet.");
    if (read->lockReason == LockReason::StreamRunning && m_canPause)
        return {};
    const int locking = m_features.value(QString::fromStdString(read->lockingNode), FeatureTree::none);
    return locking == FeatureTree::none ? lockAdvice(*read, nullptr, nullptr).reason
                                        : lockAdvice(*read, &info(locking), state(locking)).reason;
}

FeatureTreeModel::Marks FeatureTreeModel::marks(int feature) const
{
    Marks marks;
    marks.setFlag(ChangedMark, m_isChanged && m_isChanged(name(feature)));
    marks.setFlag(FavouriteMark, m_isFavourite && m_isFavourite(name(feature)));
    if (const NodeState *const read = state(feature)) {
        const bool isLockedByStream = read->lockReason == LockReason::StreamRunning && !m_canPause;
        marks.setFlag(LockedMark, read->lockReason == LockReason::LockedByNode || isLockedByStream);
    }
    return marks;
}

bool FeatureTreeModel::isUsable(int feature) const
{
    return !m_isGone && state(feature) && lockReason(feature).isEmpty();
}

QString FeatureTreeModel::textOf(int feature) const
{
    const NodeState *const read = state(feature);
    return read ? valueText(info(feature), *read) : QString();
}

QString FeatureTreeModel::toolTip(int feature) const
{
    const NodeInfo &node = info(feature);
    const NodeState *const read = state(feature);
    const QString displayName = QString::fromStdString(node.displayName);
    QString tip = QStringLiteral("<p><b>%1</b></p>").arg(displayName.toHtmlEscaped());
    if (node.displayName != node.name)
        tip += paragraph(name(feature));
    tip += paragraph(QString::fromStdString(node.description.empty() ? node.toolTip : node.description));
    if (node.type == NodeType::Category || !read)
        return tip;
    tip += paragraph(lockReason(feature));
    return read->problem.empty() ? tip : tip + paragraph(QString::fromStdString(read->problem));
}

QString FeatureTreeModel::accessibleText(int feature) const
{
    QStringList parts{QString::fromStdString(info(feature).displayName)};
    const QString value = textOf(feature);
    if (!value.isEmpty())
        parts.append(value);
    const Marks own = marks(feature);
    if (own.testFlag(LockedMark))
        parts.append(tr("locked"));
    if (own.testFlag(ChangedMark))
        parts.append(tr("changed"));
    if (own.testFlag(FavouriteMark))
        parts.append(tr("favourite"));
    return parts.join(QStringLiteral(", "));
}

// ---- The model --------------------------------------------------------------------------------------------

QModelIndex FeatureTreeModel::indexOf(int feature, int column) const
{
    if (feature < 0 || feature >= m_nodes.size() || feature == m_tree.root())
        return {};
    return createIndex(m_tree.row(feature), column, quintptr(feature));
}

QModelIndex FeatureTreeModel::indexOf(const QString &name, int column) const
{
    return indexOf(m_features.value(name, FeatureTree::none), column);
}

QModelIndex FeatureTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, quintptr(m_tree.children(featureOf(parent))[std::size_t(row)]));
}

QModelIndex FeatureTreeModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(m_tree.parent(featureOf(index))) : QModelIndex();
}

int FeatureTreeModel::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0)
        return 0;
    return int(m_tree.children(featureOf(parent)).size());
}

int FeatureTreeModel::columnCount(const QModelIndex &) const
{
    return columns;
}

Qt::ItemFlags FeatureTreeModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    const int feature = featureOf(index);
    if (feature == FeatureTree::none || index.column() != ValueColumn || !isUsable(feature))
        return flags;
    const NodeType type = info(feature).type;
    flags.setFlag(Qt::ItemIsEditable, type != NodeType::Category && type != NodeType::Register);
    flags.setFlag(
        Qt::ItemIsUserCheckable, type == NodeType::Boolean && state(feature)->lockReason == LockReason::None);
    return flags;
}

QVariant FeatureTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == FeatureColumn ? tr("Feature") : tr("Value");
}

QVariant FeatureTreeModel::data(const QModelIndex &index, int role) const
{
    const int feature = featureOf(index);
    if (feature == FeatureTree::none)
        return {};
    if (role == Qt::ToolTipRole)
        return toolTip(feature);
    if (role == Qt::AccessibleDescriptionRole)
        return lockReason(feature);
    if (role == Qt::ForegroundRole)
        return colour(feature, Column(index.column()));
    return index.column() == FeatureColumn ? featureData(feature, role) : valueData(feature, role);
}

QVariant FeatureTreeModel::featureData(int feature, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(info(feature).displayName);
    case Qt::AccessibleTextRole:
        return accessibleText(feature);
    case MarksRole:
        return int(marks(feature));
    default:
        return {};
    }
}

QVariant FeatureTreeModel::valueData(int feature, int role) const
{
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
        return textOf(feature);
    if (role != Qt::CheckStateRole)
        return {};
    const NodeState *const read = state(feature);
    const bool *const isOn = read ? std::get_if<bool>(&read->value) : nullptr;
    return isOn ? QVariant(*isOn ? Qt::Checked : Qt::Unchecked) : QVariant();
}

QVariant FeatureTreeModel::colour(int feature, Column column) const
{
    const NodeState *const read = state(feature);
    if (m_isGone || (read && isAbsent(*read) && info(feature).type != NodeType::Category))
        return QColor::fromRgb(greyedColour);
    if (column == FeatureColumn || !read)
        return {};
    if (!read->problem.empty())
        return QColor::fromRgb(warningColour);
    return isUsable(feature) ? QVariant() : QColor::fromRgb(secondaryColour);
}

bool FeatureTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    m_client.write(name(featureOf(index)), value.toInt() == Qt::Checked);
    return true;
}
