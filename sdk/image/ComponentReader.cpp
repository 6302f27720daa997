#include "sdk/image/ComponentReader.h"

#include <type_traits>

namespace {

/// Kernels may read so many bytes behind the last one that they need.
constexpr std::size_t readAhead = 16;

template <typename Sample>
constexpr bool isForScreen = std::is_same_v<Sample, std::uint8_t>;

/// Returns an integer of `depth` bits, of which there are at least 16, as a sample.
template <typename Sample, typename Integer>
Sample highestBits(Integer value, unsigned depth, bool isSigned)
{
    if constexpr (isForScreen<Sample>) {
        const auto bits = static_cast<std::uint8_t>(value >> (depth - 8));
        return static_cast<Sample>(isSigned ? bits ^ 0x80U : bits);
    } else {
        return static_cast<Sample>(value >> (depth - 16));
    }
}

template <typename Sample>
void prepare(std::vector<Sample> &buffer, std::size_t count)
{
    const std::size_t size = count + readAhead / sizeof(Sample);
    if (buffer.size() < size)
        buffer.resize(size);
}

} // namespace

template <typename Sample>
void ComponentReader<Sample>::setPicture(const RawImage &picture, const PixelLayout &layout)
{
    m_picture = picture;
    m_layout = &layout;
    m_geometry = PictureGeometry(picture, layout);
    if (layout.number == Number::Float)
        m_ranges = findFloatRanges(picture, layout, m_geometry);
}

template <typename Sample>
const Sample *ComponentReader<Sample>::read(
    unsigned plane, std::uint32_t y, std::size_t first, std::size_t count, std::vector<Sample> &buffer)
{
    const LinePlace place = m_geometry.line(plane, y);
    const std::size_t index = place.first + first;
    const std::size_t componentOffset = place.offset + index * m_layout->componentBits() / 8;
    prepare(buffer, count + 1); // One more, because pairs are only read as a whole.
    switch (m_layout->packing) {
    case Packing::Bytes:
        return readBytes(componentOffset, count, buffer);
    case Packing::Pairs:
        return readPairs(place.offset, index, count, buffer);
    case Packing::Words:
        readWords(componentOffset, count, buffer.data());
        break;
    case Packing::Bits:
        readBits(place.offset, index, count, buffer.data());
        break;
    case Packing::Wide:
        if (m_layout->number == Number::Float)
            readFloats(plane, componentOffset, count, buffer.data());
        else if (m_layout->format.depth == 32)
            readIntegers<std::uint32_t>(componentOffset, count, buffer.data());
        else
            readIntegers<std::uint64_t>(componentOffset, count, buffer.data());
        break;
    case Packing::Rgb10p32:
        readRgb10p32(place.offset + index / 3 * 4, count / 3, buffer.data());
        break;
    case Packing::Rgb565:
        readRgb565(place.offset + index / 3 * 2, count / 3, buffer.data());
        break;
    case Packing::Unknown:
        readUnknown(place.offset, index, count, buffer.data());
        break;
    }
    return buffer.data();
}

template <typename Sample>
const std::uint8_t *ComponentReader<Sample>::end(
    const Sample *components, const std::vector<Sample> &buffer) const
{
    if (isInPicture(components))
        return m_picture.data + m_picture.size;
    const bool isInBuffer = components >= buffer.data() && components < buffer.data() + buffer.size();
    return isInBuffer ? reinterpret_cast<const std::uint8_t *>(buffer.data() + buffer.size())
                      : m_bytes.data() + m_bytes.size();
}

template <typename Sample>
bool ComponentReader<Sample>::isInPicture(const Sample *sample) const
{
    const auto *const address = reinterpret_cast<const std::uint8_t *>(sample);
    return address >= m_picture.data && address < m_picture.data + m_picture.size;
}

template <typename Sample>
typename ComponentReader<Sample>::Bytes ComponentReader<Sample>::bytes(std::size_t offset, std::size_t count)
{
    if (offset + count <= m_picture.size)
        return {m_picture.data + offset, m_picture.data + m_picture.size};
    if (m_bytes.size() < count + readAhead)
        m_bytes.resize(count + readAhead);
    const std::size_t present = offset < m_picture.size ? m_picture.size - offset : 0;
    if (present != 0)
        std::memcpy(m_bytes.data(), m_picture.data + offset, present);
    std::memset(m_bytes.data() + present, 0, count - present);
    return {m_bytes.data(), m_bytes.data() + m_bytes.size()};
}

template <typename Sample>
const Sample *ComponentReader<Sample>::readBytes(
    std::size_t offset, std::size_t count, std::vector<Sample> &buffer)
{
    const std::uint8_t *const input = bytes(offset, count).begin;
    const unsigned depth = m_layout->format.depth;
    const bool isSigned = m_layout->number == Number::Signed;
    if constexpr (isForScreen<Sample>) {
        if (depth == 8 && !isSigned)
            return input;
        for (std::size_t i = 0; i < count; ++i)
            buffer[i] = static_cast<Sample>(isSigned ? input[i] ^ 0x80U : (input[i] & 1U) * 0xFFU);
    } else {
        const unsigned mask = (1U << depth) - 1;
        const unsigned sign = isSigned ? 0x80U : 0; // Subtracting the flipped sign extends it.
        for (std::size_t i = 0; i < count; ++i)
            buffer[i] = static_cast<Sample>(((input[i] & mask) ^ sign) - sign);
    }
    return buffer.data();
}

template <typename Sample>
void ComponentReader<Sample>::readWords(std::size_t offset, std::size_t count, Sample *output)
{
    const bool isSigned = isForScreen<Sample> && m_layout->number == Number::Signed;
    m_kernels->of<Sample>().unpackWords({bytes(offset, 2 * count).begin, m_picture.isBigEndian,
                                            m_layout->format.depth, isSigned ? 0x8000U : 0},
        count, output);
}

template <typename Sample>
void ComponentReader<Sample>::readBits(
    std::size_t offset, std::size_t first, std::size_t count, Sample *output)
{
    const unsigned bits = m_layout->format.depth;
    const std::size_t bit = first * bits;
    const auto firstBit = static_cast<unsigned>(bit % 8);
    const Bytes input = bytes(offset + bit / 8, (firstBit + count * bits + 7) / 8);
    m_kernels->of<Sample>().unpackBits({input.begin, input.end, firstBit, bits}, count, output);
}

template <typename Sample>
const Sample *ComponentReader<Sample>::readPairs(
    std::size_t offset, std::size_t first, std::size_t count, std::vector<Sample> &buffer)
{
    const std::size_t skipped = first % 2;
    const std::size_t whole = count + skipped;
    const Bytes input = bytes(offset + first / 2 * 3, (whole * 3 + 1) / 2);
    m_kernels->of<Sample>().unpackPairs(
        {input.begin, input.end, m_layout->format.depth}, whole, buffer.data());
    return buffer.data() + skipped;
}

template <typename Sample>
void ComponentReader<Sample>::readFloats(
    unsigned plane, std::size_t offset, std::size_t count, Sample *output)
{
    const unsigned bits = m_layout->format.depth;
    const std::uint8_t *const input = bytes(offset, count * bits / 8).begin;
    const unsigned components = m_layout->arrangement.components;
    const bool isPlanar = m_layout->planes == Planes::Planar;
    for (std::size_t i = 0; i < count; ++i) {
        const FloatRange &range = m_ranges[isPlanar ? plane : i % components];
        const double share = range.share(floatAt(input + i * bits / 8, bits, m_picture.isBigEndian));
        output[i] = highestBits<Sample>(static_cast<unsigned>(share * 0xFFFF + 0.5), 16, false);
    }
}

template <typename Sample>
template <typename Integer>
void ComponentReader<Sample>::readIntegers(std::size_t offset, std::size_t count, Sample *output)
{
    const std::uint8_t *const input = bytes(offset, count * sizeof(Integer)).begin;
    const bool isSigned = m_layout->number == Number::Signed;
    for (std::size_t i = 0; i < count; ++i)
        output[i]
            = highestBits<Sample>(integerAt<Integer>(input + i * sizeof(Integer), m_picture.isBigEndian),
                8 * sizeof(Integer), isSigned);
}

template <typename Sample>
void ComponentReader<Sample>::readRgb10p32(std::size_t offset, std::size_t pixels, Sample *output)
{
    const std::uint8_t *const input = bytes(offset, 4 * pixels).begin;
    constexpr unsigned shift = isForScreen<Sample> ? 2 : 0;
    for (std::size_t i = 0; i < pixels; ++i) {
        const auto pixel = integerAt<std::uint32_t>(input + 4 * i, m_picture.isBigEndian);
        for (std::size_t part = 0; part < 3; ++part)
            output[3 * i + part] = static_cast<Sample>((pixel >> (10 * part) & 0x3FFU) >> shift);
    }
}

template <typename Sample>
void ComponentReader<Sample>::readRgb565(std::size_t offset, std::size_t pixels, Sample *output)
{
    const std::uint8_t *const input = bytes(offset, 2 * pixels).begin;
    for (std::size_t i = 0; i < pixels; ++i) {
        const unsigned pixel = integerAt<std::uint16_t>(input + 2 * i, m_picture.isBigEndian);
        unsigned first = pixel & 0x1FU;
        unsigned green = pixel >> 5U & 0x3FU;
        unsigned last = pixel >> 11U;
        if constexpr (isForScreen<Sample>) { // The highest bits are repeated below, so that white stays
                                             // white.
            first = first << 3U | first >> 2U;
            green = green << 2U | green >> 4U;
            last = last << 3U | last >> 2U;
        }
        output[3 * i] = static_cast<Sample>(first);
        output[3 * i + 1] = static_cast<Sample>(green);
        output[3 * i + 2] = static_cast<Sample>(last);
    }
}

template <typename Sample>
void ComponentReader<Sample>::readUnknown(
    std::size_t offset, std::size_t first, std::size_t count, Sample *output)
{
    const std::size_t bits = storedBitsPerPixel(m_picture.pixelFormat);
    const std::size_t firstByte = first * bits / 8;
    const std::uint8_t *const input
        = bytes(offset + firstByte, (first + count - 1) * bits / 8 + 1 - firstByte).begin;
    for (std::size_t i = 0; i < count; ++i)
        output[i] = input[(first + i) * bits / 8 - firstByte];
}

template class ComponentReader<std::uint8_t>;
template class ComponentReader<std::uint16_t>;
