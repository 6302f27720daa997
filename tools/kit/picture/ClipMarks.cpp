#include "tools/kit/picture/ClipMarks.h"

#include "sdk/image/ClippingRange.h"
#include "sdk/image/RawValues.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::uint32_t brightColor = 0xffff0000;
constexpr std::uint32_t darkColor = 0xff0000ff;

/// The components that can be clipped. They are the first ones of a pixel.
struct ClippingComponents
{
    unsigned count = 0;
    unsigned step = 1; ///< Words of a pixel.
    std::array<ClippingRange, 3> ranges;
};

ClippingComponents clippingComponents(const PixelLayout &layout)
{
    ClippingComponents result;
    const PixelFormat &format = layout.format;
    if (layout.number == Number::Float || format.kind == PixelKind::Raw)
        return result;
    result.step = format.components;
    result.count = format.kind == PixelKind::Yuv || format.kind == PixelKind::Depth
        ? 1
        : std::min<unsigned>(format.components, 3);
    for (unsigned component = 0; component < result.count; ++component)
        result.ranges[component] = clippingRange(layout, component);
    return result;
}

/// Adds the marks of one component to those of the line. Luma can be beyond the ends of its range. The
/// distance of two pixels is a constant, so that the compiler vectorises the loop.
template <unsigned step>
void addMarks(const std::uint16_t *words, std::uint32_t width, const ClippingRange &range, bool isSigned,
    std::uint8_t *marks)
{
    // Signed numbers are moved, so that their order is that of unsigned ones.
    const auto flip = static_cast<std::uint16_t>(isSigned ? 0x8000 : 0);
    const auto lowest = static_cast<std::uint16_t>(range.lowest ^ flip);
    const auto highest = static_cast<std::uint16_t>(range.highest ^ flip);
    for (std::size_t i = 0; i < width; ++i) {
        const auto value = static_cast<std::uint16_t>(words[i * step] ^ flip);
        const auto darkMark = static_cast<std::uint8_t>(value <= lowest ? ClipMarks::dark : 0);
        const auto brightMark = static_cast<std::uint8_t>(value >= highest ? ClipMarks::bright : 0);
        marks[i] = static_cast<std::uint8_t>(marks[i] | darkMark | brightMark);
    }
}

/// The functions for 1 to 4 words per pixel.
constexpr std::array addMarksOfStep = {addMarks<1>, addMarks<2>, addMarks<3>, addMarks<4>};

/// Removes the marks of integers whose highest 16 bits, but not all bits, are at the end of the range.
void checkAllBits(const RawImage &picture, const PixelLayout &layout, std::uint32_t x, std::uint32_t y,
    std::uint32_t width, std::uint8_t *marks)
{
    const bool isSigned = layout.number == Number::Signed;
    // Doubles do not contain the highest integer of 64 bits; both numbers are rounded alike.
    const double values = static_cast<double>(std::uint64_t(1) << (layout.format.depth - 1)) * 2;
    const double lowest = isSigned ? -values / 2 : 0;
    const double highest = static_cast<double>((isSigned ? values / 2 : values) - 1);
    for (std::uint32_t i = 0; i < width; ++i) {
        if (marks[i] == 0)
            continue;
        const double value = rawValues(picture, x + i, y).values[0];
        if (value > lowest && value < highest)
            marks[i] = 0;
    }
}

/// The pixels of an axis that an output pixel shows.
struct PixelRange
{
    std::uint32_t begin;
    std::uint32_t end;
};

/// Returns what an axis of `from` pixels shows at `index` of `to` output pixels: one pixel if it is enlarged.
PixelRange shownPixels(std::uint32_t index, std::uint64_t from, std::uint64_t to)
{
    if (from <= to) {
        const auto nearest = static_cast<std::uint32_t>((2 * std::uint64_t(index) + 1) * from / (2 * to));
        return {nearest, nearest + 1};
    }
    const std::uint64_t end = (std::uint64_t(index) + 1) * from;
    return {static_cast<std::uint32_t>(index * from / to), static_cast<std::uint32_t>((end - 1) / to + 1)};
}

bool hasMarks(const std::uint8_t *marks, std::size_t width)
{
    unsigned found = 0;
    for (std::size_t i = 0; i < width; ++i)
        found |= marks[i];
    return found != 0;
}

} // namespace

const std::uint8_t *ClipMarks::line(
    const RawImage &picture, std::uint32_t x, std::uint32_t y, std::uint32_t width)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const ClippingComponents components = clippingComponents(layout);
    m_marks.assign(width, 0);
    if (components.count == 0)
        return m_marks.data();
    m_words.resize(std::max(m_words.size(), std::size_t(width) * components.step));
    m_converter.toWords(picture, {x, y, width, 1}, m_words.data(), 0);
    for (unsigned component = 0; component < components.count; ++component)
        addMarksOfStep[components.step - 1](m_words.data() + component, width, components.ranges[component],
            layout.number == Number::Signed, m_marks.data());
    if (layout.format.depth > 16)
        checkAllBits(picture, layout, x, y, width, m_marks.data());
    return m_marks.data();
}

void ClipMarks::paint(const RawImage &picture, const Region &region, std::uint32_t width,
    std::uint32_t height, std::uint32_t *output, std::size_t stride)
{
    std::vector<PixelRange> columns;
    for (std::uint32_t x = 0; x < width; ++x)
        columns.push_back(shownPixels(x, region.width, width));
    m_present.reset();
    for (std::uint32_t y = 0; y < height; ++y, output += stride) {
        const PixelRange rows = shownPixels(y, region.height, height);
        const std::uint8_t *const marks = lines(picture, region, rows.begin, rows.end);
        if (!hasMarks(marks, region.width))
            continue;
        for (std::uint32_t x = 0; x < width; ++x) {
            unsigned found = 0;
            for (std::uint32_t i = columns[x].begin; i < columns[x].end; ++i)
                found |= marks[i];
            if (found != 0)
                output[x] = (found & bright) != 0 ? brightColor : darkColor;
        }
    }
}

/// Returns the marks that any of the lines has.
const std::uint8_t *ClipMarks::lines(
    const RawImage &picture, const Region &region, std::uint32_t begin, std::uint32_t end)
{
    m_lines.assign(region.width, 0);
    std::uint8_t *const result = m_lines.data();
    for (std::uint32_t row = begin; row < end; ++row) {
        // The previous output line may have ended with this line.
        if (m_present != row)
            line(picture, region.x, region.y + row, region.width);
        m_present = row;
        const std::uint8_t *const marks = m_marks.data();
        for (std::size_t i = 0; i < region.width; ++i)
            result[i] = static_cast<std::uint8_t>(result[i] | marks[i]);
    }
    return result;
}
