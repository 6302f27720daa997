#pragma once

#include <QWidget>

class FeatureFilter;
class QLabel;
class QPushButton;

/// The line below the tree that says what the filter hides, with a button to show it. Takes no room if there
/// is nothing to say.
class FilterHint : public QWidget
{
    Q_OBJECT

public:
    /// The filter must outlive the hint.
    explicit FilterHint(FeatureFilter &filter, QWidget *parent = nullptr);

    QString text() const;

private:
    void showFilter();
    QString textForNothing() const;
    void showMore();

    FeatureFilter &m_filter;
    QLabel *m_text;
    QPushButton *m_button;
};
