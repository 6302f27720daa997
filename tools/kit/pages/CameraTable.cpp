#include "tools/kit/pages/CameraTable.h"

#include <algorithm>
#include <iterator>

namespace {

struct ColumnText
{
    const char *title;
    QString CameraEntry::*text;
};

// In the order of CameraTable::Column.
constexpr ColumnText columnTexts[] = {
    {QT_TRANSLATE_NOOP("CameraTable", "Name"), &CameraEntry::name},
    {QT_TRANSLATE_NOOP("CameraTable", "Model"), &CameraEntry::model},
    {QT_TRANSLATE_NOOP("CameraTable", "Serial number"), &CameraEntry::serialNumber},
    {QT_TRANSLATE_NOOP("CameraTable", "Connection"), &CameraEntry::connection},
    {QT_TRANSLATE_NOOP("CameraTable", "User-defined name"), &CameraEntry::userName},
};

CameraEntries::const_iterator findCamera(const CameraEntries &cameras, const QString &id)
{
    return std::find_if(
        cameras.begin(), cameras.end(), [&](const CameraEntry &camera) { return camera.id == id; });
}

} // namespace

CameraTable::CameraTable(QObject *parent) : QAbstractTableModel(parent) { }

void CameraTable::setCameras(const CameraEntries &cameras)
{
    removeMissing(cameras);
    for (const CameraEntry &camera : cameras)
        put(camera);
}

void CameraTable::removeMissing(const CameraEntries &cameras)
{
    for (int row = m_cameras.size() - 1; row >= 0; --row) {
        if (findCamera(cameras, m_cameras[row].id) != cameras.end())
            continue;
        beginRemoveRows({}, row, row);
        m_cameras.removeAt(row);
        endRemoveRows();
    }
}

/// Adds the camera or replaces the one with its ID.
void CameraTable::put(const CameraEntry &camera)
{
    const int row = int(std::distance(m_cameras.cbegin(), findCamera(m_cameras, camera.id)));
    if (row == m_cameras.size()) {
        beginInsertRows({}, row, row);
        m_cameras.append(camera);
        endInsertRows();
        return;
    }
    const bool isSame = m_cameras[row].hasSameTexts(camera);
    m_cameras[row] = camera;
    if (!isSame)
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int CameraTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_cameras.size();
}

int CameraTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(std::size(columnTexts));
}

QVariant CameraTable::data(const QModelIndex &index, int role) const
{
    const CameraEntry &camera = m_cameras[index.row()];
    if (role == Qt::ToolTipRole)
        return camera.id;
    if (role != Qt::DisplayRole)
        return {};
    // A camera without a display name is recognised by its ID.
    return index.column() == Name && camera.name.isEmpty() ? camera.deviceId
                                                           : camera.*columnTexts[index.column()].text;
}

QVariant CameraTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return tr(columnTexts[section].title);
}
