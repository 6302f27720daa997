#include "sdk/image/ScreenScaler.h"

#include <algorithm>
#include <cstring>

namespace {

/// Kernels may read so many bytes behind the last one that they need.
constexpr std::size_t spareBytes = 32;

void grow(std::vector<std::uint8_t> &buffer, std::size_t count)
{
    if (buffer.size() < count + spareBytes)
        buffer.resize(count + spareBytes);
}

} // namespace

void ScreenScaler::Axis::set(std::uint32_t newFrom, std::uint32_t newTo)
{
    from = newFrom;
    to = newTo;
    halvings = 0;
    halved = from;
    while (from >> (halvings + 1) >= to) {
        ++halvings;
        halved = (halved + 1) / 2;
    }
}

std::uint32_t ScreenScaler::Axis::nearest(std::uint32_t index) const
{
    return static_cast<std::uint32_t>((2 * std::uint64_t(index) + 1) * from / (2 * std::uint64_t(to)));
}

std::uint32_t ScreenScaler::Axis::position(std::uint32_t index) const
{
    // The centre of the output pixel, in halved pixels, minus the half of a pixel from its edge to its
    // centre.
    const std::uint64_t edge
        = (2 * std::uint64_t(index) + 1) * from * weightUnit / (std::uint64_t(to) << (halvings + 1));
    const std::uint64_t center = edge - std::min<std::uint64_t>(edge, weightUnit / 2);
    return static_cast<std::uint32_t>(
        std::min<std::uint64_t>(center, (halved - 1) * std::uint64_t(weightUnit)));
}

void ScreenScaler::scale(ColorLines<std::uint8_t> &lines, const Region &from, const Target &target)
{
    m_lines = &lines;
    m_kernels = &lines.reader().kernels();
    m_channels = target.channels;
    m_columns.set(from.width, target.width);
    m_rows.set(from.height, target.height);
    m_cache[0].index = m_cache[1].index = 0xFFFFFFFF;
    if (m_halves.size() < m_rows.halvings)
        m_halves.resize(m_rows.halvings);
    planColumns();

    const std::size_t lineBytes = std::size_t(target.width) * target.channels;
    std::uint32_t previous = 0xFFFFFFFF;
    std::uint8_t *output = target.output;
    for (std::uint32_t y = 0; y < target.height; ++y, output += target.stride) {
        if (m_rows.isReduced()) {
            writeRow(interpolatedRow(y), output);
            continue;
        }
        const std::uint32_t source = m_rows.nearest(y);
        if (source == previous)
            std::memcpy(output, output - target.stride, lineBytes);
        else
            writeRow(withHalvedColumns(m_lines->line(source).channels, m_tall), output);
        previous = source;
    }
}

/// Prepares how output columns are made of input columns.
void ScreenScaler::planColumns()
{
    if (!m_columns.isReduced()) {
        m_nearestColumns.resize(std::max<std::size_t>(m_nearestColumns.size(), m_columns.to));
        for (std::uint32_t i = 0; i < m_columns.to; ++i)
            m_nearestColumns[i] = m_columns.nearest(i);
        return;
    }
    // Two more, so that kernels can read two steps at once.
    m_steps.resize(std::max<std::size_t>(m_steps.size(), m_columns.to / 8 + 2));
    const std::uint32_t highestBase = m_columns.halved - std::min<std::uint32_t>(m_columns.halved, 16);
    for (std::uint32_t i = 0; i < m_columns.to; ++i) {
        InterpolationStep &step = m_steps[i / 8];
        const std::uint32_t position = m_columns.position(i);
        const std::uint32_t column = position / weightUnit;
        const std::uint32_t next = std::min(column + 1, m_columns.halved - 1);
        const auto weight = static_cast<std::int8_t>(position % weightUnit);
        if (i % 8 == 0)
            step.base = std::min(column, highestBase);
        const std::size_t pair = i % 8 * 2;
        step.source[pair] = static_cast<std::uint8_t>(column - step.base);
        step.source[pair + 1] = static_cast<std::uint8_t>(next - step.base);
        step.weights[pair] = static_cast<std::int8_t>(weightUnit - weight);
        step.weights[pair + 1] = weight;
    }
}

/// Returns a source line that stays valid.
ScreenScaler::Row ScreenScaler::persistentRow(std::uint32_t y, RowBuffer &buffer)
{
    const ColorLines<std::uint8_t>::Line line = m_lines->line(y);
    if (line.staysValid)
        return line.channels;
    Row row{};
    for (unsigned channel = 0; channel < m_channels; ++channel) {
        grow(buffer[channel], m_columns.from);
        std::memcpy(buffer[channel].data(), line.channels[channel], m_columns.from);
        row[channel] = buffer[channel].data();
    }
    return row;
}

/// Returns a row after `level` halvings of the height, which is in `buffer` or in the picture.
ScreenScaler::Row ScreenScaler::halvedRow(unsigned level, std::uint32_t index, RowBuffer &buffer)
{
    if (level == 0)
        return persistentRow(index, buffer);
    std::uint32_t count = m_rows.from; // Rows before this halving.
    for (unsigned i = 1; i < level; ++i)
        count = (count + 1) / 2;
    if (2 * index + 1 >= count)
        return halvedRow(level - 1, 2 * index, buffer); // The last row is alone.
    std::array<RowBuffer, 2> &halves = m_halves[level - 1];
    const Row first = halvedRow(level - 1, 2 * index, halves[0]);
    const Row second
        = level == 1 ? m_lines->line(2 * index + 1).channels : halvedRow(level - 1, 2 * index + 1, halves[1]);
    Row row{};
    for (unsigned channel = 0; channel < m_channels; ++channel) {
        grow(buffer[channel], m_columns.from);
        m_kernels->average(first[channel], second[channel], m_columns.from, buffer[channel].data());
        row[channel] = buffer[channel].data();
    }
    return row;
}

/// Returns a row after all halvings. Each of the last two rows is only computed once.
const ScreenScaler::HalvedRow &ScreenScaler::cachedRow(std::uint32_t index)
{
    HalvedRow &entry = m_cache[index % 2];
    if (entry.index != index) {
        entry.index = index;
        entry.row = m_columns.halvings == 0
            ? halvedRow(m_rows.halvings, index, entry.buffer)
            : withHalvedColumns(halvedRow(m_rows.halvings, index, m_tall), entry.buffer);
    }
    return entry;
}

/// Returns a row after all halvings of the width, which is in `buffer` unless there are none.
ScreenScaler::Row ScreenScaler::withHalvedColumns(const Row &row, RowBuffer &buffer)
{
    Row result = row;
    std::uint32_t count = m_columns.from;
    for (unsigned i = 1; i <= m_columns.halvings; ++i, count = (count + 1) / 2) {
        // The two buffers alternate, and the last step writes into the first one.
        RowBuffer &target = (m_columns.halvings - i) % 2 == 0 ? buffer : m_spare;
        for (unsigned channel = 0; channel < m_channels; ++channel) {
            grow(target[channel], (count + 1) / 2);
            m_kernels->halve(result[channel], count, target[channel].data());
            result[channel] = target[channel].data();
        }
    }
    return result;
}

ScreenScaler::Row ScreenScaler::interpolatedRow(std::uint32_t y)
{
    const std::uint32_t position = m_rows.position(y);
    const auto weight = static_cast<int>(position % weightUnit);
    const Row first = cachedRow(position / weightUnit).row;
    if (weight == 0)
        return first;
    const Row second = cachedRow(position / weightUnit + 1).row;
    Row row{};
    for (unsigned channel = 0; channel < m_channels; ++channel) {
        grow(m_blended[channel], m_columns.halved);
        m_kernels->blend(
            first[channel], second[channel], weight, m_columns.halved, m_blended[channel].data());
        row[channel] = m_blended[channel].data();
    }
    return row;
}

void ScreenScaler::writeRow(const Row &row, std::uint8_t *output)
{
    if (m_channels == 1) {
        scaleColumns(row[0], output);
        return;
    }
    Row scaled = row;
    if (m_columns.from != m_columns.to) {
        for (unsigned channel = 0; channel < m_channels; ++channel) {
            grow(m_scaled[channel], m_columns.to);
            scaleColumns(row[channel], m_scaled[channel].data());
            scaled[channel] = m_scaled[channel].data();
        }
    }
    m_kernels->interleave(scaled, m_columns.to, output);
}

void ScreenScaler::scaleColumns(const std::uint8_t *input, std::uint8_t *output)
{
    if (m_columns.from == m_columns.to) {
        std::memcpy(output, input, m_columns.to);
        return;
    }
    if (!m_columns.isReduced()) {
        for (std::uint32_t i = 0; i < m_columns.to; ++i)
            output[i] = input[m_nearestColumns[i]];
        return;
    }
    const bool isHalvedOnly = m_columns.to == m_columns.halved && m_columns.from % m_columns.to == 0;
    if (isHalvedOnly)
        std::memcpy(output, input, m_columns.to);
    else
        m_kernels->interpolate(input, m_columns.halved, m_steps.data(), m_columns.to, output);
}
