#include "tools/kit/measure/flatfield/ShadingGrid.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr std::uint32_t minCellSize = 10; // Pixels of the channel.
constexpr double outlierLimit = 4; // Standard deviations.

/// A place between the centres of two neighbouring cells; outside of them, the line is continued.
struct GridPlace
{
    std::size_t cell;
    double share; ///< Weight of the next cell.
};

GridPlace gridPlace(double position, std::uint32_t size, std::uint32_t cells)
{
    if (cells == 1)
        return {0, 0};
    const double place = (position + 0.5) * cells / size - 0.5;
    const auto cell = static_cast<std::size_t>(std::clamp(std::floor(place), 0.0, cells - 2.0));
    return {cell, place - static_cast<double>(cell)};
}

/// The pixels of a channel that belong to a cell.
struct CellRange
{
    std::uint32_t first;
    std::uint32_t end;
};

CellRange cellRange(std::uint32_t cell, std::uint32_t cells, std::uint32_t size)
{
    return {static_cast<std::uint32_t>(std::uint64_t(cell) * size / cells),
        static_cast<std::uint32_t>(std::uint64_t(cell + 1) * size / cells)};
}

} // namespace

ShadingGrid::ShadingGrid(const ChannelMosaic &mosaic, std::size_t channel, const std::vector<float> &values,
    std::uint32_t maxCells)
    : m_mosaic(mosaic),
      m_channel(channel),
      m_columns(std::clamp(mosaic.columns(channel) / minCellSize, 1U, maxCells)),
      m_lines(std::clamp(mosaic.lines(channel) / minCellSize, 1U, maxCells))
{
    m_cells.reserve(std::size_t(m_columns) * m_lines);
    for (std::uint32_t line = 0; line < m_lines; ++line) {
        for (std::uint32_t column = 0; column < m_columns; ++column)
            m_cells.push_back(cellMean(values, column, line));
    }
}

double ShadingGrid::cellMean(const std::vector<float> &values, std::uint32_t column, std::uint32_t line) const
{
    const CellRange xs = cellRange(column, m_columns, m_mosaic.columns(m_channel));
    const CellRange ys = cellRange(line, m_lines, m_mosaic.lines(m_channel));
    double mean = 0;
    double limit = INFINITY;
    for (int pass = 0; pass < 3; ++pass) { // The second and the third one leave outliers out.
        double sum = 0;
        double squares = 0;
        double count = 0;
        for (std::uint32_t y = ys.first; y < ys.end; ++y) {
            const std::size_t start
                = std::size_t(m_mosaic.firstY(m_channel) + y * m_mosaic.step) * m_mosaic.width
                + m_mosaic.firstX(m_channel);
            for (std::uint32_t x = xs.first; x < xs.end; ++x) {
                const double deviation = double(values[start + std::size_t(x) * m_mosaic.step]) - mean;
                if (std::abs(deviation) > limit)
                    continue;
                sum += deviation;
                squares += deviation * deviation;
                ++count;
            }
        }
        if (count < 1)
            break;
        const double shift = sum / count;
        mean += shift;
        limit = outlierLimit * std::sqrt(std::max(0.0, squares / count - shift * shift)) + 1e-6;
    }
    return mean;
}

void ShadingGrid::line(std::uint32_t y, std::vector<float> &shape) const
{
    const double step = m_mosaic.step;
    const GridPlace vertical
        = gridPlace((y - double(m_mosaic.firstY(m_channel))) / step, m_mosaic.lines(m_channel), m_lines);
    std::vector<double> cells(m_columns);
    for (std::size_t column = 0; column < m_columns; ++column) {
        const double upper = m_cells[vertical.cell * m_columns + column];
        const double lower = m_lines == 1 ? upper : m_cells[(vertical.cell + 1) * m_columns + column];
        cells[column] = upper + (lower - upper) * vertical.share;
    }
    shape.resize(m_mosaic.width);
    for (std::uint32_t x = 0; x < m_mosaic.width; ++x) {
        const GridPlace place = gridPlace(
            (x - double(m_mosaic.firstX(m_channel))) / step, m_mosaic.columns(m_channel), m_columns);
        const double left = cells[place.cell];
        const double right = m_columns == 1 ? left : cells[place.cell + 1];
        shape[x] = static_cast<float>(left + (right - left) * place.share);
    }
}

double ShadingGrid::mean() const
{
    return std::accumulate(m_cells.begin(), m_cells.end(), 0.0) / static_cast<double>(m_cells.size());
}

double ShadingGrid::highest() const
{
    return *std::max_element(m_cells.begin(), m_cells.end());
}

double ShadingGrid::range() const
{
    const auto [lowest, highest] = std::minmax_element(m_cells.begin(), m_cells.end());
    return mean() > 0 ? (*highest - *lowest) / mean() : 0;
}
