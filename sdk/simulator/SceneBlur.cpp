#include "sdk/simulator/SceneBlur.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr float unitsPerValue = 1 << 14; // A square of 255 × 255 values of 2 fits into an int.
}

SceneBlur::SceneBlur(int width, int maxRadius, int step)
    : m_border(step * (maxRadius + 2)),
      m_step(step),
      m_length(static_cast<std::size_t>(width + 2 * m_border)),
      m_lines(static_cast<std::size_t>(2 * m_border + 1)),
      m_sums(m_length * m_lines)
{ }

const std::uint32_t *SceneBlur::sums(int linesBack) const
{
    return m_sums.data() + (m_next + m_lines - 1 - static_cast<std::size_t>(linesBack)) % m_lines * m_length;
}

void SceneBlur::addLine(const float *values)
{
    std::uint32_t *line = m_sums.data() + m_next % m_lines * m_length;
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
    const std::uint32_t *above = sums(m_step);
    for (std::size_t x = 0; x < m_length; ++x)
        line[x] += above[x];
}

void SceneBlur::blur(int x, int count, double radius, float *values) const
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
    const std::uint32_t *smallTop = sums(m_border + smallBefore) + center;
    const std::uint32_t *smallBottom = sums(m_border - smallAfter) + center;
    const std::uint32_t *largeTop = sums(m_border + largeBefore) + center;
    const std::uint32_t *largeBottom = sums(m_border - largeAfter) + center;
    for (int i = 0; i < count; ++i) {
        const std::uint32_t smallSum = smallBottom[i + smallAfter] - smallBottom[i - smallBefore]
            - smallTop[i + smallAfter] + smallTop[i - smallBefore];
        const std::uint32_t largeSum = largeBottom[i + largeAfter] - largeBottom[i - largeBefore]
            - largeTop[i + largeAfter] + largeTop[i - largeBefore];
        values[i] = static_cast<float>(static_cast<std::int32_t>(smallSum)) * smallWeight
            + static_cast<float>(static_cast<std::int32_t>(largeSum)) * largeWeight;
    }
}
