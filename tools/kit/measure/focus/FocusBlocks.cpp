#include "tools/kit/measure/focus/FocusBlocks.h"

#include <algorithm>
#include <array>

namespace {
constexpr std::size_t blockSize = FocusBlock::size;

/// The values of one line of a block and of the neighbour on the right; the others are padding. All loops
/// over a line have the same number of rounds, so that the compiler can compute several pixels at once.
using Line = std::array<float, 2 * blockSize>;
using Pixels = std::array<Line, blockSize + 1>; // The lines of a block and the line below.

template <std::size_t pixelStep>
void copyLine(const std::uint16_t *words, Line &line)
{
    for (std::size_t x = 0; x < blockSize; ++x)
        line[x] = words[x * pixelStep];
    line[blockSize] = words[blockSize * pixelStep];
}

void copyPixels(const std::uint16_t *words, const FocusPlane &layout, Pixels &pixels)
{
    for (Line &line : pixels) {
        switch (layout.pixelStep) {
        case 1:
            copyLine<1>(words, line);
            break;
        case 2:
            copyLine<2>(words, line);
            break;
        default:
            for (std::size_t x = 0; x <= blockSize; ++x)
                line[x] = words[x * layout.pixelStep];
        }
        words += layout.lineStep;
    }
}

float highestValue(const Pixels &pixels)
{
    std::array<float, blockSize> highest{};
    float last = 0;
    for (const Line &line : pixels) {
        for (std::size_t x = 0; x < blockSize; ++x)
            highest[x] = std::max(highest[x], line[x]);
        last = std::max(last, line[blockSize]);
    }
    return std::max(last, *std::max_element(highest.begin(), highest.end()));
}

FocusBlock blockOf(const Pixels &pixels)
{
    // One sum for each column.
    std::array<float, blockSize> sum{};
    std::array<float, blockSize> across{};
    std::array<float, blockSize> down{};
    std::array<float, blockSize> detail{};
    std::array<float, 2 * blockSize> steps{};
    for (std::size_t y = 0; y < blockSize; ++y) {
        const Line &line = pixels[y];
        const Line &below = pixels[y + 1];
        for (std::size_t x = 0; x < blockSize; ++x) {
            const float right = line[x + 1] - line[x];
            sum[x] += line[x];
            across[x] += right * right;
            steps[x] = below[x] - line[x];
            down[x] += steps[x] * steps[x];
        }
        if (y % 2 != 0)
            continue;
        for (std::size_t x = 0; x < blockSize; ++x) { // Only every second column is used.
            const float diagonal = steps[x + 1] - steps[x];
            detail[x] += diagonal * diagonal;
        }
    }
    FocusBlock block;
    for (std::size_t x = 0; x < blockSize; ++x) {
        block.sum += sum[x];
        block.across += across[x];
        block.down += down[x];
        block.detail += x % 2 == 0 ? detail[x] : 0;
    }
    block.acrossCount = block.downCount = FocusBlock::pixels;
    return block;
}

/// Replaces the differences by those between pixels that are not clipped.
void leaveClippedOut(const Pixels &pixels, float maxValue, FocusBlock &block)
{
    block.across = block.down = 0;
    block.acrossCount = block.downCount = 0;
    for (std::size_t y = 0; y < blockSize; ++y) {
        for (std::size_t x = 0; x < blockSize; ++x) {
            const float pixel = pixels[y][x];
            if (pixel >= maxValue) {
                ++block.clipped;
                continue;
            }
            if (const float right = pixels[y][x + 1]; right < maxValue) {
                block.across += (right - pixel) * (right - pixel);
                ++block.acrossCount;
            }
            if (const float below = pixels[y + 1][x]; below < maxValue) {
                block.down += (below - pixel) * (below - pixel);
                ++block.downCount;
            }
        }
    }
}
} // namespace

void FocusBlocks::begin(std::size_t planes, std::size_t width, std::size_t height, std::uint16_t maxValue)
{
    m_planes = planes;
    m_columns = width > 0 ? (width - 1) / blockSize : 0;
    m_rows = height > 0 ? (height - 1) / blockSize : 0;
    m_maxValue = maxValue;
    m_blocks.resize(planes * m_columns * m_rows);
}

void FocusBlocks::computeRow(
    std::size_t plane, std::size_t row, const std::uint16_t *words, const FocusPlane &layout)
{
    Pixels pixels{};
    for (std::size_t column = 0; column < m_columns; ++column) {
        copyPixels(words + layout.offset + column * blockSize * layout.pixelStep, layout, pixels);
        FocusBlock block = blockOf(pixels);
        if (highestValue(pixels) >= m_maxValue)
            leaveClippedOut(pixels, m_maxValue, block);
        m_blocks[(plane * m_rows + row) * m_columns + column] = block;
    }
}
