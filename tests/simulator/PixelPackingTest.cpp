#include "sdk/simulator/PixelPacking.h"
#include "sdk/simulator/SceneNoise.h"

#include <gtest/gtest.h>

namespace {
using Layout = PackedFormat::Layout;

/// Reads value `i` of a packed line, according to the tables of the pixel format naming convention.
unsigned unpacked(const PackedFormat &format, const std::vector<std::uint8_t> &line, std::size_t i)
{
    const auto byte = [&](std::size_t index) { return static_cast<unsigned>(line.at(index)); };
    switch (format.layout) {
    case Layout::Bytes:
        return byte(i);
    case Layout::Words:
        return byte(2 * i) | byte(2 * i + 1) << 8;
    case Layout::BitStream: {
        unsigned value = 0;
        for (std::size_t bit = 0; bit < static_cast<std::size_t>(format.depth); ++bit) {
            const std::size_t position = i * static_cast<std::size_t>(format.depth) + bit;
            value |= (byte(position / 8) >> position % 8 & 1) << bit;
        }
        return value;
    }
    case Layout::Packed:
        const unsigned high = byte(i / 2 * 3 + (i % 2 == 0 ? 0 : 2));
        const unsigned low = byte(i / 2 * 3 + 1) >> (i % 2 == 0 ? 0 : 4);
        return format.depth == 10 ? high << 2 | (low & 3) : high << 4 | (low & 15);
    }
    return 0;
}

class PackedLine : public testing::TestWithParam<PackedFormat>
{ };
} // namespace

TEST_P(PackedLine, UnpacksToTheSameValues)
{
    const PackedFormat &format = GetParam();
    for (const int width : {1, 2, 3, 4, 5, 6, 7, 64}) {
        const std::size_t count
            = static_cast<std::size_t>(width) * (format.colors == PackedFormat::Colors::Rgb ? 3 : 1);
        std::vector<std::uint16_t> values(count);
        for (std::size_t i = 0; i < count; ++i)
            values[i] = static_cast<std::uint16_t>(scrambled(i) & static_cast<unsigned>(format.maxValue()));
        std::vector<std::uint8_t> line(format.lineSize(width) + 1, 0xA5);
        packLine(format, values.data(), width, line.data());
        for (std::size_t i = 0; i < count; ++i)
            EXPECT_EQ(unpacked(format, line, i), values[i]) << "value " << i << " of " << count;
        EXPECT_EQ(line.back(), 0xA5) << "Nothing is written behind the line.";
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, PackedLine, testing::ValuesIn(supportedPixelFormats()),
    [](const auto &format) { return format.param.name; });

TEST(PixelFormats, HaveTheSizeOfTheirCode)
{
    EXPECT_EQ(pixelFormat(0x010A0046).lineSize(6), 8U); // Mono10p, 60 bits.
    EXPECT_EQ(pixelFormat(0x010C002B).lineSize(3), 5U); // BayerRG12Packed, 36 bits.
    EXPECT_EQ(pixelFormat(0x02180014).lineSize(3), 9U); // RGB8.
}
