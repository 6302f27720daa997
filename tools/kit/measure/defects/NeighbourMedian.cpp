#include "tools/kit/measure/defects/NeighbourMedian.h"

#include <algorithm>

namespace {
/// Returns the pixel or the line inside the picture; reflection keeps the colour.
std::uint32_t reflected(std::int64_t position, std::uint32_t size)
{
    const std::int64_t last = static_cast<std::int64_t>(size) - 1;
    const std::int64_t inside = position < 0 ? -position : position;
    return static_cast<std::uint32_t>(inside > last ? 2 * last - inside : inside);
}
} // namespace

NeighbourMedian::NeighbourMedian(std::uint32_t width, std::uint32_t height, unsigned colorStep)
    : m_width(width),
      m_height(height),
      m_step(colorStep),
      m_rows(height == 1 ? 1 : 5),
      m_margin((static_cast<std::uint32_t>(neighbours) / m_rows) / 2 * colorStep),
      m_stride(width + 2 * static_cast<std::size_t>(m_margin) + lanes), // Whole groups may be read.
      m_lines(m_rows * m_stride)
{ }

void NeighbourMedian::computeLine(const float *values, std::uint32_t y, float *medians)
{
    for (std::uint32_t row = 0; row < m_rows; ++row) {
        const std::int64_t down = (static_cast<std::int64_t>(row) - m_rows / 2) * m_step;
        const float *const source
            = values + static_cast<std::size_t>(reflected(y + down, m_height)) * m_width;
        float *const line = m_lines.data() + row * m_stride;
        std::copy_n(source, m_width, line + m_margin);
        for (std::uint32_t i = 1; i <= m_margin; ++i) {
            line[m_margin - i] = source[reflected(-static_cast<std::int64_t>(i), m_width)];
            line[m_margin + m_width - 1 + i]
                = source[reflected(static_cast<std::int64_t>(m_width) - 1 + i, m_width)];
        }
    }
    for (std::size_t x = 0; x < m_width; x += lanes) {
        const Lanes result = median(x);
        std::copy_n(result.data(), std::min(lanes, m_width - x), medians + x);
    }
}

void NeighbourMedian::sortPair(Lanes &low, Lanes &high)
{
    for (std::size_t i = 0; i < lanes; ++i) {
        const float a = low[i];
        const float b = high[i];
        low[i] = a < b ? a : b;
        high[i] = a < b ? b : a;
    }
}

/// Moves the lowest of the numbers to the first place and the highest one to the last place.
void NeighbourMedian::moveExtremes(Lanes *values, std::size_t count)
{
    const std::size_t half = count / 2;
    for (std::size_t i = 0; i < half; ++i)
        sortPair(values[i], values[count - 1 - i]);
    for (std::size_t i = 1; i < count - half; ++i)
        sortPair(values[0], values[i]);
    for (std::size_t i = half; i + 1 < count; ++i)
        sortPair(values[i], values[count - 1]);
}

/// Returns the medians for some pixels from x on. The median is neither the lowest nor the highest of more
/// than half of the numbers, so these two are replaced by one of the remaining numbers, again and again.
NeighbourMedian::Lanes NeighbourMedian::median(std::size_t x) const
{
    const std::size_t columns = neighbours / m_rows;
    const auto load = [&](std::size_t index, Lanes &target) {
        const float *const first = m_lines.data() + index / columns * m_stride + x + index % columns * m_step;
        std::copy_n(first, lanes, target.begin());
    };
    constexpr std::size_t first = neighbours / 2 + 2;
    std::array<Lanes, first> values;
    for (std::size_t i = 0; i < first; ++i)
        load(i, values[i]);
    std::size_t count = first;
    for (std::size_t next = first; next < neighbours; ++next, --count) {
        moveExtremes(values.data(), count);
        load(next, values[0]);
    }
    moveExtremes(values.data(), count);
    return values[1];
}
