#include "sdk/simulator/PixelPacking.h"

#include <algorithm>
#include <cstring>

namespace {
using Layout = PixelFormat::Layout;
using Colors = PixelFormat::Colors;

void packBytes(const std::uint16_t *values, std::size_t count, std::uint8_t *line)
{
    for (std::size_t i = 0; i < count; ++i)
        line[i] = static_cast<std::uint8_t>(values[i]);
}

void packBitStream(const std::uint16_t *values, std::size_t count, int depth, std::uint8_t *line)
{
    unsigned bits = 0; // Values that were taken but not yet written, first one lowest.
    int used = 0;
    for (std::size_t i = 0; i < count; ++i) {
        bits |= static_cast<unsigned>(values[i]) << used;
        for (used += depth; used >= 8; used -= 8) {
            *line++ = static_cast<std::uint8_t>(bits);
            bits >>= 8;
        }
    }
    if (used > 0)
        *line = static_cast<std::uint8_t>(bits);
}

void packPair(unsigned first, unsigned second, int lowBits, std::uint8_t *bytes)
{
    const unsigned mask = (1U << lowBits) - 1;
    bytes[0] = static_cast<std::uint8_t>(first >> lowBits);
    bytes[1] = static_cast<std::uint8_t>((first & mask) | (second & mask) << 4);
    bytes[2] = static_cast<std::uint8_t>(second >> lowBits);
}

void packPairs(const std::uint16_t *values, std::size_t count, int depth, std::uint8_t *line)
{
    const int lowBits = depth - 8;
    for (std::size_t i = 0; i + 1 < count; i += 2, line += 3)
        packPair(values[i], values[i + 1], lowBits, line);
    if (count % 2 == 0)
        return;
    std::uint8_t last[3];
    packPair(values[count - 1], 0, lowBits, last);
    std::copy_n(last, 2, line);
}
} // namespace

const std::vector<PixelFormat> &supportedPixelFormats()
{
    static const std::vector<PixelFormat> formats{
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

const PixelFormat &pixelFormat(std::uint32_t code)
{
    const auto &formats = supportedPixelFormats();
    return *std::find_if(
        formats.begin(), formats.end(), [code](const PixelFormat &format) { return format.code == code; });
}

void packLine(const PixelFormat &format, const std::uint16_t *values, int width, std::uint8_t *line)
{
    const std::size_t count = static_cast<std::size_t>(width) * (format.colors == Colors::Rgb ? 3 : 1);
    switch (format.layout) {
    case Layout::Bytes:
        return packBytes(values, count, line);
    case Layout::Words: // The simulator runs on little endian processors.
        std::memcpy(line, values, count * sizeof *values);
        return;
    case Layout::BitStream:
        return packBitStream(values, count, format.depth, line);
    case Layout::Packed:
        return packPairs(values, count, format.depth, line);
    }
}
