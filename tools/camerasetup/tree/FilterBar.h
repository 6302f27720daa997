#pragma once

#include <QWidget>

class FeatureFilter;
class QComboBox;
class QLineEdit;
class QToolButton;

/// The line for searching, the level, and the switches for the changed features and the favourites.
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    /// The filter must outlive the bar.
    explicit FilterBar(FeatureFilter &filter, QWidget *parent = nullptr);

    void focusSearch();

signals:
    /// A person wants to go on in the tree.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showFilter();
    void setLevel(int row);

    FeatureFilter &m_filter;
    QLineEdit *m_search;
    QComboBox *m_level;
    QToolButton *m_changed;
    QToolButton *m_favourites;
};
