#pragma once

#include "tools/kit/camera/CameraEntry.h"

#include <QAbstractTableModel>

/// The cameras as the rows of a table. A change of the list changes only the rows concerned, so the selection
/// and the scroll position stay.
class CameraTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        Model,
        SerialNumber,
        Connection,
        UserName
    };

    explicit CameraTable(QObject *parent = nullptr);

    void setCameras(const CameraEntries &cameras);
    const CameraEntry &camera(int row) const { return m_cameras[row]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void removeMissing(const CameraEntries &cameras);
    void put(const CameraEntry &camera);

    CameraEntries m_cameras;
};
