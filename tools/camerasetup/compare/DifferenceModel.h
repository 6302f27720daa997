#pragma once

#include "tools/camerasetup/compare/ComparisonFilter.h"
#include "tools/camerasetup/compare/DifferenceRow.h"

#include <QAbstractItemModel>

#include <set>
#include <vector>

/// The features of a comparison that a filter shows, by category. Features that can be copied from left to
/// right have a check box; so have their categories.
class DifferenceModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        FeatureColumn,
        LeftColumn,
        RightColumn,
        ColumnCount
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Shows another comparison; nothing is checked then.
    void setComparison(std::vector<DifferenceRow> rows, const QString &leftTitle, const QString &rightTitle);
    void setFilter(const ComparisonFilter &filter);
    const ComparisonFilter &filter() const { return m_filter; }

    /// Returns null for a category.
    const DifferenceRow *row(const QModelIndex &index) const;
    std::vector<const DifferenceRow *> shownRows() const;
    std::vector<const DifferenceRow *> checkedRows() const; ///< Also those that the filter hides.
    std::vector<const DifferenceRow *>
    differentRows() const; ///< All that can be copied and are not ignorable.

    static bool canCopy(const ComparedFeature &feature);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void checkedChanged();

private:
    struct Category
    {
        QString title;
        std::vector<std::size_t> rows; ///< Into m_rows.
        bool canCheck = false;
    };

    void rebuild();
    QVariant categoryData(const Category &category, int column, int role) const;
    QVariant rowData(std::size_t number, int column, int role) const;
    static QString cellText(const DifferenceRow &row, int column);
    static QString toolTip(const DifferenceRow &row, int column);
    Qt::CheckState checkState(const Category &category) const;
    void check(std::size_t number, bool isChecked);
    std::size_t rowNumber(const QModelIndex &index) const;

    std::vector<DifferenceRow> m_rows;
    std::vector<Category> m_categories;
    std::set<std::size_t> m_checked;
    ComparisonFilter m_filter;
    QString m_titles[2];
};
