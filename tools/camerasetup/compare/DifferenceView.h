#pragma once

#include "tools/camerasetup/compare/DifferenceModel.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QTreeView;

/// The differences of two sides as a tree, with a search and filters above it and the numbers below it.
class DifferenceView : public QWidget
{
    Q_OBJECT

public:
    explicit DifferenceView(QWidget *parent = nullptr);

    void setComparison(std::vector<DifferenceRow> rows, const QString &leftTitle, const QString &rightTitle);
    void clear(const QString &hint); ///< Shows a sentence instead.

    const DifferenceModel &model() const { return *m_model; }
    std::vector<const DifferenceRow *> selectedRows() const;
    QString summary() const;

public slots:
    void focusSearch();

signals:
    void featureRequested(const QString &name);
    void choiceChanged(); ///< What is selected or checked.

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QTreeView *createTree();
    QWidget *createFilters();
    QString emptyHint() const;
    void applyFilter();
    void showSummary();
    void requestFeature(const QModelIndex &index);

    DifferenceModel *m_model;
    QLineEdit *m_search;
    QCheckBox *m_equal;
    QCheckBox *m_ignorable;
    QTreeView *m_tree;
    QLabel *m_hint;
    QLabel *m_summary;
    ComparisonCounts m_counts;
    QString m_unreadHint;
    bool m_isComplete = false; // Both sides were read.
};
