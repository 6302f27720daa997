#pragma once

#include "tools/kit/measure/flatfield/ChannelMosaic.h"

#include <cstdint>
#include <vector>

/// The large-scale shape of one channel: the means of rectangular cells, with straight lines between their
/// centres. Pixels that deviate from their cell by more than 4 standard deviations are left out.
class ShadingGrid
{
public:
    /// @param values One value for each pixel of the mosaic, line by line.
    /// @param maxCells Most cells in each direction; small pictures have fewer.
    ShadingGrid(const ChannelMosaic &mosaic, std::size_t channel, const std::vector<float> &values,
        std::uint32_t maxCells);

    /// Computes the shape in a line of the picture, for each column.
    void line(std::uint32_t y, std::vector<float> &shape) const;

    double mean() const;
    double highest() const;

    /// Returns the difference of the highest and the lowest cell, relative to the mean.
    double range() const;

    std::uint32_t columns() const { return m_columns; }
    std::uint32_t lines() const { return m_lines; }
    const std::vector<double> &cells() const { return m_cells; } ///< Line by line.

private:
    double cellMean(const std::vector<float> &values, std::uint32_t column, std::uint32_t line) const;

    const ChannelMosaic m_mosaic;
    const std::size_t m_channel;
    std::uint32_t m_columns = 1;
    std::uint32_t m_lines = 1;
    std::vector<double> m_cells;
};
