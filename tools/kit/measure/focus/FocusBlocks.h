#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// What is known about one block of 8 x 8 pixels of one colour.
struct FocusBlock
{
    static constexpr std::size_t size = 8;
    static constexpr std::uint32_t pixels = size * size;

    float sum = 0; ///< Sum of the values of all pixels.
    float across = 0; ///< Sum of the squared differences to the right neighbours.
    float down = 0; ///< Sum of the squared differences to the lower neighbours.
    float detail = 0; ///< Sum of the squared (a - b - c + d) of all disjoint squares of 2 x 2 pixels.
    std::uint32_t acrossCount = 0; ///< Differences in the sum: those without clipped pixels.
    std::uint32_t downCount = 0;
    std::uint32_t clipped = 0; ///< Pixels that have the maximum value.

    double mean() const { return static_cast<double>(sum) / pixels; }
};

/// The pixels of one colour among the words of a picture.
struct FocusPlane
{
    std::size_t offset = 0; ///< Index of the first pixel.
    std::size_t pixelStep = 1; ///< Words from pixel to pixel.
    std::size_t lineStep = 0; ///< Words from line to line.
};

/// The blocks of one picture: all numbers that the focus measurement needs of the pixels.
class FocusBlocks
{
public:
    /// Begins a picture of `planes` colours with this number of pixels of each colour. Neighbours on the
    /// right and below are needed, so pixels at these edges may belong to no block.
    void begin(std::size_t planes, std::size_t width, std::size_t height, std::uint16_t maxValue);

    std::size_t planes() const { return m_planes; }
    std::size_t columns() const { return m_columns; }
    std::size_t rows() const { return m_rows; }

    /// Computes one row of blocks of one colour. The plane has FocusBlock::size + 1 lines, from the first
    /// line of the row on.
    void computeRow(std::size_t plane, std::size_t row, const std::uint16_t *words, const FocusPlane &layout);

    const FocusBlock &at(std::size_t plane, std::size_t column, std::size_t row) const
    {
        return m_blocks[(plane * m_rows + row) * m_columns + column];
    }

private:
    std::size_t m_planes = 0;
    std::size_t m_columns = 0;
    std::size_t m_rows = 0;
    std::uint16_t m_maxValue = 0;
    std::vector<FocusBlock> m_blocks;
};
