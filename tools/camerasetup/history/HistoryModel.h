#pragma once

#include <QAbstractTableModel>
#include <QVector>

class ChangeHistory;
struct FeatureEdit;
struct HistoryEntry;

/// The history as a table. An entry that changed several features has one row for each of them.
class HistoryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        Feature,
        OldValue,
        NewValue
    };

    /// The text of a cell without rounding and display names, for copying.
    static constexpr int rawTextRole = Qt::UserRole;

    explicit HistoryModel(ChangeHistory &history, QObject *parent = nullptr);

    /// Returns the name of the row's feature.
    QString featureName(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row
    {
        int entry;
        int edit;
    };

    void follow();
    int countEdits() const;
    const HistoryEntry &entryOf(int row) const;
    const FeatureEdit &editOf(int row) const;
    QString text(int row, int column) const;
    QString rawText(int row, int column) const;
    QString featureText(int row) const;
    QString toolTip(int row, int column) const;

    ChangeHistory &m_history;
    QVector<Row> m_rows;
};
