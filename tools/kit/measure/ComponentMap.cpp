#include "tools/kit/measure/ComponentMap.h"

#include "sdk/image/PictureGeometry.h"

#include <algorithm>

namespace {

using Components = std::array<MeasuredComponent, 4>;
constexpr Components colors
    = {MeasuredComponent::Red, MeasuredComponent::Green, MeasuredComponent::Blue, MeasuredComponent::Alpha};
constexpr Components lumaAndChroma
    = {MeasuredComponent::Luma, MeasuredComponent::ChromaBlue, MeasuredComponent::ChromaRed};
constexpr Components ordinals = {
    MeasuredComponent::First, MeasuredComponent::Second, MeasuredComponent::Third, MeasuredComponent::Fourth};
constexpr Components grey = {MeasuredComponent::Grey};

const Components &componentsOf(const PixelFormat &format)
{
    switch (format.kind) {
    case PixelKind::Bayer:
    case PixelKind::Rgb:
    case PixelKind::BiColor:
        return colors;
    case PixelKind::Yuv:
        return lumaAndChroma;
    default:
        return format.components == 1 ? grey : ordinals;
    }
}

/// Returns the channel that has the component of this index in memory.
std::uint8_t channelAt(const Arrangement &arrangement, std::uint8_t index)
{
    std::uint8_t channel = 0;
    for (std::uint8_t i = 0; i < 3; ++i) {
        const auto &positions = arrangement.positions[i];
        if (std::find(positions.begin(), positions.begin() + arrangement.pixels, index)
            != positions.begin() + arrangement.pixels)
            channel = i;
    }
    return channel;
}

/// Returns the end of the last byte of a line, counted from the start of the picture.
std::size_t endOfLine(const RawImage &picture, const PixelLayout &layout, std::uint32_t y)
{
    const PictureGeometry geometry(picture, layout);
    const unsigned lastPlane = layout.planes == Planes::Interleaved ? 0
        : layout.planes == Planes::Planar                           ? layout.arrangement.components - 1U
                                                                    : 1;
    const LinePlace place = geometry.line(lastPlane, y);
    if (layout.planes != Planes::Interleaved)
        return place.offset + place.count * layout.componentBits() / 8;
    const std::size_t bits = std::size_t(picture.width) * storedBitsPerPixel(picture.pixelFormat);
    const std::size_t before = place.first == 0 ? 0 : bits * y;
    return place.offset + (before + bits + 7) / 8;
}

} // namespace

ComponentMap::ComponentMap(const PixelLayout &layout) : m_components(componentsOf(layout.format))
{
    const PixelFormat &format = layout.format;
    m_samplesPerPixel = format.components;
    m_count = format.components;
    m_period = format.components;
    for (std::uint8_t i = 0; i < 4; ++i)
        m_indices[0][i] = m_indices[1][i] = i;
    if (format.kind == PixelKind::Bayer) {
        m_count = 3;
        m_period = 2;
        for (unsigned y = 0; y < 2; ++y)
            for (unsigned x = 0; x < 2; ++x)
                m_indices[y][x]
                    = static_cast<std::uint8_t>((x == layout.redX ? 0 : 1) + (y == layout.redY ? 0 : 1));
    }
    if (format.kind == PixelKind::BiColor) {
        m_count = 3;
        m_period = 4;
        for (std::uint8_t i = 0; i < 4; ++i)
            m_indices[0][i] = m_indices[1][i] = channelAt(layout.arrangement, i);
    }
}

std::uint32_t completeLines(const RawImage &picture, const PixelLayout &layout)
{
    std::uint32_t lines = picture.height;
    if (lines == 0 || endOfLine(picture, layout, lines - 1) <= picture.size)
        return lines;
    std::uint32_t missing = lines - 1; // Some line that the picture lacks; those before `lines` are searched.
    for (lines = 0; lines < missing;) {
        const std::uint32_t middle = lines + (missing - lines) / 2;
        if (endOfLine(picture, layout, middle) <= picture.size)
            lines = middle + 1;
        else
            missing = middle;
    }
    return lines;
}

Region cutToPicture(const Region &region, const RawImage &picture, std::uint32_t lines)
{
    Region cut = region;
    cut.x = std::min(region.x, picture.width);
    cut.y = std::min(region.y, lines);
    cut.width = std::min(region.width, picture.width - cut.x);
    cut.height = std::min(region.height, lines - cut.y);
    return cut;
}
