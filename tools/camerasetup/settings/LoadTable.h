#pragma once

#include "tools/camerasetup/settings/SettingsLoad.h"

#include <QAbstractTableModel>
#include <QVector>

/// The settings of a load with what becomes of each one. What has failed comes first, then what was
/// overruled, what changes, and what stays.
class LoadTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        LineColumn, ///< Line of the file.
        FeatureColumn,
        BeforeColumn, ///< Value in the camera before the load.
        WantedColumn,
        NowColumn, ///< Value that was read back.
        OutcomeColumn,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void show(const SettingsLoad &load);

    /// Leaves out what has the value already.
    void setOnlyChanges(bool isOnlyChanges);

    /// Returns the visible and hidden rows with a title, tab-separated.
    QString text() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// In the order of the table.
    enum class Kind
    {
        Problem,
        Overruled,
        Changed,
        Unchanged
    };
    struct Row
    {
        Kind kind;
        QString texts[ColumnCount];
    };

    static Row rowOf(const FeatureChange &change, const LoadReport &report);
    void filter();

    QVector<Row> m_all;
    QVector<Row> m_rows; // The visible ones.
    bool m_isOnlyChanges = false;
};
