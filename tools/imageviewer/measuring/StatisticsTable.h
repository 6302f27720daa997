#pragma once

#include "tools/kit/measure/Measurements.h"

#include <QTableWidget>

#include <vector>

/// Shows the statistics of each component in a column. "Copy" puts the table on the clipboard, as text with
/// tabulators.
class StatisticsTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit StatisticsTable(QWidget *parent = nullptr);

    void setStatistics(const std::vector<ComponentStatistics> &statistics);

    /// Returns the table as text: one line per component, after a line of titles; numbers without
    /// group separators.
    QString text() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void copy();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::vector<ComponentStatistics> m_statistics;
};
