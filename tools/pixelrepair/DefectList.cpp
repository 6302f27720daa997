#include "tools/pixelrepair/DefectList.h"

#include "tools/pixelrepair/DefectColors.h"
#include "tools/pixelrepair/DefectTexts.h"

#include <QLocale>

#include <algorithm>

DefectList::DefectList(QObject *parent) : QAbstractTableModel(parent) { }

void DefectList::setDefects(const DefectMap &map, const std::vector<DefectGroup> &groups)
{
    beginResetModel();
    m_groups = groups;
    m_pixels = map.pixels;
    std::stable_sort(m_pixels.begin(), m_pixels.end(),
        [](const DefectPixelEntry &a, const DefectPixelEntry &b) { return a.deviation > b.deviation; });
    endResetModel();
}

QPoint DefectList::place(int row) const
{
    const auto index = static_cast<std::size_t>(row);
    if (index >= m_groups.size()) {
        const DefectPixelEntry &pixel = m_pixels[index - m_groups.size()];
        return {static_cast<int>(pixel.x), static_cast<int>(pixel.y)};
    }
    const DefectGroup &group = m_groups[index];
    return {static_cast<int>((group.firstX + group.lastX) / 2),
        static_cast<int>((group.firstY + group.lastY) / 2)};
}

int DefectList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_groups.size() + m_pixels.size());
}

int DefectList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columnCountOfList;
}

QVariant DefectList::data(const QModelIndex &index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const bool isGroup = row < m_groups.size();
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return int((index.column() == KindColumn ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (index.column() == KindColumn && !isGroup)
            return defectColor(m_pixels[row - m_groups.size()].kind);
        return {};
    case Qt::ToolTipRole:
        if (!isGroup)
            return DefectTexts::explanation(m_pixels[row - m_groups.size()].kind);
        return tr("Columns %1 to %2, lines %3 to %4")
            .arg(m_groups[row].firstX)
            .arg(m_groups[row].lastX)
            .arg(m_groups[row].firstY)
            .arg(m_groups[row].lastY);
    default:
        return {};
    }
}

QVariant DefectList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString titles[] = {tr("Kind"), tr("Column"), tr("Line"), tr("Deviation")};
    return titles[section];
}

QString DefectList::text(int row, int column) const
{
    const auto index = static_cast<std::size_t>(row);
    const bool isGroup = index < m_groups.size();
    switch (column) {
    case KindColumn:
        return isGroup ? DefectTexts::shape(m_groups[index].shape)
                       : DefectTexts::kind(m_pixels[index - m_groups.size()].kind);
    case XColumn:
        return QString::number(place(row).x());
    case YColumn:
        return QString::number(place(row).y());
    default:
        break;
    }
    if (isGroup)
        return tr("%n pixel(s)", nullptr, static_cast<int>(m_groups[index].pixels));
    return tr("%1 σ").arg(QLocale().toString(m_pixels[index - m_groups.size()].deviation, 'f', 1));
}
