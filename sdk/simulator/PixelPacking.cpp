#include "sdk/simulator/PixelPacking.h"

#include <algorithm>
#include <cstring>

namespace {
using Layout = PackedFormat::Layout;
using Colors = PackedFormat::Colors;

void packBytes(const std::uint16_t *values, std::size_t count, std::uint8_t *line)
{
    for (std::size_t i = 0; i < count; ++i)
        line[i] = static_cast<std::uint8_t>(values[i]);
}

/// Stores up to four values in the first bytes, first value in the lowest bits.
template <int depth>
void packFour(const std::uint16_t *values, std::size_t count, std::uint8_t *bytes)
{
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < count; ++i)
        bits |= static_cast<std::uint64_t>(values[i]) << (depth * i);
    const std::size_t size = (count * depth + 7) / 8;
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<std::uint8_t>(bits >> (8 * i));
}

template <int depth>
void packBitStream(const std::uint16_t *values, std::size_t count, std::uint8_t *line)
{
    std::size_t i = 0;
    for (; i + 4 <= count; i += 4, line += depth / 2)
        packFour<depth>(values + i, 4, line);
    packFour<depth>(values + i, count - i, line);
}

/// Stores two values in three bytes: the high bits of the first one, the low bits of both, and the high bits
/// of the second one.
template <int depth>
void packPairs(const std::uint16_t *values, std::size_t count, std::uint8_t *line)
{
    constexpr int lowBits = depth - 8;
    constexpr unsigned mask = (1U << lowBits) - 1;
    for (std::size_t i = 0; i < count; i += 2, line += 3) {
        line[0] = static_cast<std::uint8_t>(values[i] >> lowBits);
        line[1] = static_cast<std::uint8_t>(values[i] & mask);
        if (i + 1 == count)
            return;
        line[1] = static_cast<std::uint8_t>(line[1] | (values[i + 1] & mask) << 4);
        line[2] = static_cast<std::uint8_t>(values[i + 1] >> lowBits);
    }
}
} // namespace

const std::vector<PackedFormat> &supportedPixelFormats()
{
    static const std::vector<PackedFormat> formats{
        {0x01080001, "Mono8", 8, Layout::Bytes, Colors::Mono},
        {0x01100003, "Mono10", 10, Layout::Words, Colors::Mono},
        {0x010A0046, "Mono10p", 10, Layout::BitStream, Colors::Mono},
        {0x010C0004, "Mono10Packed", 10, Layout::Packed, Colors::Mono},
        {0x01100005, "Mono12", 12, Layout::Words, Colors::Mono},
        {0x010C0047, "Mono12p", 12, Layout::BitStream, Colors::Mono},
        {0x010C0006, "Mono12Packed", 12, Layout::Packed, Colors::Mono},
        {0x01100007, "Mono16", 16, Layout::Words, Colors::Mono},
        {0x01080009, "BayerRG8", 8, Layout::Bytes, Colors::Bayer},
        {0x0110000D, "BayerRG10", 10, Layout::Words, Colors::Bayer},
        {0x010A0058, "BayerRG10p", 10, Layout::BitStream, Colors::Bayer},
        {0x010C0027, "BayerRG10Packed", 10, Layout::Packed, Colors::Bayer},
        {0x01100011, "BayerRG12", 12, Layout::Words, Colors::Bayer},
        {0x010C0059, "BayerRG12p", 12, Layout::BitStream, Colors::Bayer},
        {0x010C002B, "BayerRG12Packed", 12, Layout::Packed, Colors::Bayer},
        {0x02180014, "RGB8", 8, Layout::Bytes, Colors::Rgb},
    };
    return formats;
}

const PackedFormat &pixelFormat(std::uint32_t code)
{
    const auto &formats = supportedPixelFormats();
    return *std::find_if(
        formats.begin(), formats.end(), [code](const PackedFormat &format) { return format.code == code; });
}

void packLine(const PackedFormat &format, const std::uint16_t *values, int width, std::uint8_t *line)
{
    const std::size_t count = static_cast<std::size_t>(width) * (format.colors == Colors::Rgb ? 3 : 1);
    switch (format.layout) {
    case Layout::Bytes:
        return packBytes(values, count, line);
    case Layout::Words: // The simulator runs on little endian processors.
        std::memcpy(line, values, count * sizeof *values);
        return;
    case Layout::BitStream:
        return format.depth == 10 ? packBitStream<10>(values, count, line)
                                  : packBitStream<12>(values, count, line);
    case Layout::Packed:
        return format.depth == 10 ? packPairs<10>(values, count, line) : packPairs<12>(values, count, line);
    }
}
