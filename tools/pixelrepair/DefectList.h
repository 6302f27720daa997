#pragma once

#include "sdk/image/DefectMap.h"
#include "tools/kit/measure/defects/DefectGroups.h"

#include <QAbstractTableModel>
#include <QPoint>

#include <vector>

/// The defect pixels and groups as rows of a table: groups first, then the pixels, the clearest ones first.
class DefectList : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        KindColumn,
        XColumn,
        YColumn,
        DeviationColumn, ///< Deviation of a pixel, or the number of pixels of a group.
        columnCountOfList
    };

    explicit DefectList(QObject *parent = nullptr);

    void setDefects(const DefectMap &map, const std::vector<DefectGroup> &groups);

    /// Returns the pixel, or the middle of the group.
    QPoint place(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(int row, int column) const;

    std::vector<DefectGroup> m_groups;
    std::vector<DefectPixelEntry> m_pixels;
};
