#pragma once

#include "tools/kit/measure/Measurements.h"

#include <QWidget>

#include <array>
#include <vector>

class QGridLayout;
class QLabel;

/// Shows the statistics of each component in a column.
class StatisticsTable : public QWidget
{
    Q_OBJECT

public:
    explicit StatisticsTable(QWidget *parent = nullptr);

    void setStatistics(const std::vector<ComponentStatistics> &statistics);

    /// Returns the table as text: one line per component, after a line of titles, separated by tabulators;
    /// numbers without group separators.
    QString text() const;

public slots:
    /// Puts the text on the clipboard.
    void copy();

private:
    static constexpr std::size_t maxComponents = 4;
    static constexpr std::size_t rowCount = 6; ///< Name, minimum, maximum, mean, deviation and pixels.

    QLabel *addLabel(QGridLayout *layout, std::size_t row, std::size_t column);

    std::vector<ComponentStatistics> m_statistics;
    std::array<std::array<QLabel *, rowCount>, maxComponents> m_columns{};
};
