#include "sdk/simulator/SceneBlur.h"

#include "sdk/simulator/ProcessorVersions.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr float unitsPerValue = 1 << 14; // A square of 255 × 255 values of 2 fits into an int.

/// Squares around neighbouring pixels.
struct Squares
{
    const std::uint32_t
        *top; // Prefix sums of the line above the squares, and of their last line, at the pixel.
    const std::uint32_t *bottom;
    int before; // Distance of the column on the left of a square, and of its last column.
    int after;
    float weight;
};

CORVIX_PROCESSOR_VERSIONS
void addSquares(const Squares &squares, int count, float *__restrict sums)
{
    const auto [top, bottom, before, after, weight] = squares;
    for (int i = 0; i < count; ++i) {
        const std::uint32_t sum = bottom[i + after] - bottom[i - before] - top[i + after] + top[i - before];
        sums[i] += static_cast<float>(static_cast<std::int32_t>(sum)) * weight;
    }
}
} // namespace

SceneBlur::SceneBlur(int width, int maxRadius, int step)
    : m_border(step * (maxRadius + 2)),
      m_step(step),
      m_length(static_cast<std::size_t>(width + 2 * m_border)),
      m_lines(static_cast<std::size_t>(2 * m_border + 1)),
      m_prefixSums(m_length * m_lines)
{ }

const std::uint32_t *SceneBlur::prefixSums(int linesBack) const
{
    return m_prefixSums.data()
        + (m_next + m_lines - 1 - static_cast<std::size_t>(linesBack)) % m_lines * m_length;
}

void SceneBlur::addLine(const float *values)
{
    std::uint32_t *line = m_prefixSums.data() + m_next % m_lines * m_length;
    for (std::size_t x = 0; x < m_length; ++x)
        line[x] = static_cast<std::uint32_t>(static_cast<int>(values[x] * unitsPerValue));
    const auto step = static_cast<std::size_t>(m_step);
    for (std::size_t start = 0; start < step; ++start) {
        std::uint32_t sum = 0;
        for (std::size_t x = start; x < m_length; x += step) {
            sum += line[x];
            line[x] = sum;
        }
    }
    ++m_next;
    if (m_next <= step)
        return;
    const std::uint32_t *above = prefixSums(m_step);
    for (std::size_t x = 0; x < m_length; ++x)
        line[x] += above[x];
}

void SceneBlur::addBlurred(int x, int count, double radius, float *sums) const
{
    // The mean of a square with a whole number of steps, mixed with that of the next larger one.
    const double steps = radius / m_step;
    const int small = static_cast<int>(steps);
    const double largeShare = steps - small;
    const auto weight = [](int inner, double share) {
        const double side = 2 * inner + 1;
        return static_cast<float>(share / (side * side * static_cast<double>(unitsPerValue)));
    };
    const float smallWeight = weight(small, 1 - largeShare);
    const float largeWeight = weight(small + 1, largeShare);

    const int center = m_border + x;
    const int smallAfter = small * m_step; // Offset of the square's last line and column.
    const int smallBefore = smallAfter + m_step; // Offset of the line and column in front of it, negative.
    const int largeAfter = smallAfter + m_step;
    const int largeBefore = smallBefore + m_step;
    addSquares({prefixSums(m_border + smallBefore) + center, prefixSums(m_border - smallAfter) + center,
                   smallBefore, smallAfter, smallWeight},
        count, sums);
    addSquares({prefixSums(m_border + largeBefore) + center, prefixSums(m_border - largeAfter) + center,
                   largeBefore, largeAfter, largeWeight},
        count, sums);
}
