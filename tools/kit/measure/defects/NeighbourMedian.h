#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

/// The median of each pixel and its 24 nearest neighbours of the same colour: 5 x 5 pixels, or 25 pixels of a
/// single line. Beyond the edges, the picture is continued by reflection. Up to 12 defect pixels among the
/// neighbours hardly change the median, so a defect column or a cluster does not hide itself.
class NeighbourMedian
{
public:
    /// @param height 1 for a line scan sensor.
    /// @param colorStep Distance of pixels of the same colour.
    /// A line has at least 12 * colorStep + 1 pixels, or 2 * colorStep + 1 if there are as many lines.
    NeighbourMedian(std::uint32_t width, std::uint32_t height, unsigned colorStep);

    /// Computes the medians around one line of the picture, whose lines follow each other from `values` on.
    /// @param medians Has a number for each pixel of the line.
    void computeLine(const float *values, std::uint32_t y, float *medians);

private:
    static constexpr std::size_t neighbours = 25;
    static constexpr std::size_t lanes = 16; // Pixels that are processed at once.
    using Lanes = std::array<float, lanes>;

    static void sortPair(Lanes &low, Lanes &high);
    static void moveExtremes(Lanes *values, std::size_t count);
    Lanes median(std::size_t x) const;

    const std::uint32_t m_width;
    const std::uint32_t m_height;
    const unsigned m_step;
    const std::uint32_t m_rows; // Lines of the neighbourhood, 5 or 1.
    const std::uint32_t m_margin; // Pixels that are added on both sides.
    const std::size_t m_stride;
    std::vector<float> m_lines; // The lines of the neighbourhood with margins.
};
