#include "sdk/image/RawValues.h"

#include "sdk/image/WideNumbers.h"

#include <algorithm>

namespace {

/// Reads single components of a picture, without a thought to speed.
class SinglePixel
{
public:
    SinglePixel(const RawImage &picture, const PixelLayout &layout)
        : m_picture(picture), m_layout(layout), m_geometry(picture, layout)
    { }

    std::array<double, 4> values(std::uint32_t x, std::uint32_t y) const;

private:
    double component(unsigned plane, std::uint32_t y, std::size_t index) const;
    double pairComponent(std::size_t offset, std::size_t index) const;
    double wordComponent(std::size_t offset, unsigned bytes, unsigned shift, unsigned bits) const;
    double rgb565Component(std::size_t offset, std::size_t part) const;
    std::size_t componentIndex(std::uint32_t x, std::uint32_t y, unsigned channel) const;
    std::array<std::uint8_t, 8> bytes(std::size_t offset) const;

    const RawImage &m_picture;
    const PixelLayout &m_layout;
    PictureGeometry m_geometry;
};

/// Returns the bytes from `offset`, with 0 for those that the picture lacks.
std::array<std::uint8_t, 8> SinglePixel::bytes(std::size_t offset) const
{
    std::array<std::uint8_t, 8> result{};
    if (offset < m_picture.size)
        std::copy_n(
            m_picture.data + offset, std::min(m_picture.size - offset, result.size()), result.begin());
    return result;
}

std::array<double, 4> SinglePixel::values(std::uint32_t x, std::uint32_t y) const
{
    std::array<double, 4> result{};
    for (unsigned channel = 0; channel < m_layout.format.components; ++channel) {
        if (m_layout.planes == Planes::Planar)
            result[channel] = component(channel, y, x);
        else if (m_layout.planes == Planes::Interleaved || channel > 0)
            result[channel]
                = component(m_layout.planes == Planes::Interleaved ? 0 : 1, y, componentIndex(x, y, channel));
        else
            result[channel] = component(0, y, x); // Luma of a plane of its own.
    }
    return result;
}

/// Returns the index of a pixel's component in its line.
std::size_t SinglePixel::componentIndex(std::uint32_t x, std::uint32_t y, unsigned channel) const
{
    const Arrangement &arrangement = m_layout.arrangement;
    if (m_layout.format.kind == PixelKind::BiColor)
        return 2 * std::size_t(x) + channel;
    const std::size_t index = std::size_t(x) / arrangement.pixels * arrangement.components
        + arrangement.positions[channel][x % arrangement.pixels];
    const bool isCut = m_layout.planes == Planes::Interleaved && index >= m_geometry.line(0, y).count;
    // The chroma that the last group of a line lacks is that of the group before.
    return isCut && index >= arrangement.components ? index - arrangement.components : index;
}

double SinglePixel::component(unsigned plane, std::uint32_t y, std::size_t index) const
{
    const LinePlace place = m_geometry.line(plane, y);
    if (m_layout.packing != Packing::Unknown && index >= place.count && m_layout.arrangement.pixels > 1)
        return 1 << (m_layout.format.depth - 1); // Chroma that no group has is neutral.
    const std::size_t position = place.first + index;
    const unsigned bits = m_layout.componentBits();
    switch (m_layout.packing) {
    case Packing::Bits:
        return wordComponent(place.offset + position * bits / 8, 4, position * bits % 8, bits);
    case Packing::Pairs:
        return pairComponent(place.offset, position);
    case Packing::Rgb10p32:
        return wordComponent(
            place.offset + position / 3 * 4, 4, static_cast<unsigned>(position % 3) * 10, 10);
    case Packing::Rgb565:
        return rgb565Component(place.offset + position / 3 * 2, position % 3);
    case Packing::Unknown:
        return bytes(place.offset + position * storedBitsPerPixel(m_picture.pixelFormat) / 8)[0];
    default:
        return wordComponent(place.offset + position * bits / 8, bits / 8, 0, m_layout.format.depth);
    }
}

double SinglePixel::pairComponent(std::size_t offset, std::size_t index) const
{
    const std::array<std::uint8_t, 8> pair = bytes(offset + index / 2 * 3);
    const unsigned lowBits = m_layout.format.depth - 8U;
    const unsigned low = pair[1] >> (index % 2 * 4) & ((1U << lowBits) - 1);
    return static_cast<unsigned>(pair[index % 2 * 2]) << lowBits | low;
}

double SinglePixel::rgb565Component(std::size_t offset, std::size_t part) const
{
    constexpr std::array<unsigned, 3> shifts = {0, 5, 11};
    return wordComponent(offset, 2, shifts[part], part == 1 ? 6 : 5);
}

/// Returns the number of `bits` bits in a word of `bytes` bytes. Streams of bits are never big-endian.
double SinglePixel::wordComponent(std::size_t offset, unsigned size, unsigned shift, unsigned bits) const
{
    const std::array<std::uint8_t, 8> memory = bytes(offset);
    const bool isBigEndian = m_picture.isBigEndian && m_layout.packing != Packing::Bits;
    if (m_layout.number == Number::Float)
        return floatAt(memory.data(), bits, isBigEndian);
    std::uint64_t word = 0;
    for (unsigned i = 0; i < size; ++i)
        word |= std::uint64_t(memory[i]) << (8 * (isBigEndian ? size - 1 - i : i));
    const unsigned unused = 64 - bits;
    word = word >> shift << unused;
    if (m_layout.number == Number::Signed)
        return static_cast<double>(static_cast<std::int64_t>(word) >> unused);
    return static_cast<double>(word >> unused);
}

std::optional<BayerColor> bayerColor(const PixelLayout &layout, std::uint32_t x, std::uint32_t y)
{
    if (layout.format.kind != PixelKind::Bayer)
        return std::nullopt;
    const bool isRedColumn = x % 2 == layout.redX;
    const bool isRedLine = y % 2 == layout.redY;
    if (isRedColumn != isRedLine)
        return BayerColor::Green;
    return isRedLine ? BayerColor::Red : BayerColor::Blue;
}

} // namespace

RawValues rawValues(const RawImage &picture, std::uint32_t x, std::uint32_t y)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    return {SinglePixel(picture, layout).values(x, y), layout.format.components, bayerColor(layout, x, y)};
}
