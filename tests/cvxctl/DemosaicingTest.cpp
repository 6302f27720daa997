#include "tools/cvxctl/Demosaicing.h"

#include <gtest/gtest.h>

using Bytes = std::vector<std::uint8_t>;

TEST(DemosaicingTest, aUniformColourStaysUniform)
{
    Bytes mosaic;
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 7; ++x)
            mosaic.push_back(y % 2 == 0 ? (x % 2 == 0 ? 200 : 100) : (x % 2 == 0 ? 100 : 50));
    }
    Bytes expected;
    for (int pixel = 0; pixel < 5 * 7; ++pixel)
        expected.insert(expected.end(), {200, 100, 50});
    EXPECT_EQ(demosaicBayerRG8(mosaic.data(), 7, 5, 7), expected);
}

TEST(DemosaicingTest, missingComponentsAreMeansOfTheNeighbours)
{
    // Two bytes of padding follow each line.
    const Bytes mosaic{10, 20, 30, 40, 0, 0, //
        50, 60, 70, 80, 0, 0, //
        90, 100, 110, 120, 0, 0, //
        130, 140, 150, 160, 0, 0};
    const Bytes rgb = demosaicBayerRG8(mosaic.data(), 4, 4, 6);
    const auto pixel = [&](std::size_t x, std::size_t y) {
        const auto first = rgb.begin() + static_cast<std::ptrdiff_t>(3 * (4 * y + x));
        return Bytes(first, first + 3);
    };
    EXPECT_EQ(pixel(1, 1), (Bytes{60, 60, 60})); // Blue: red from the corners, green from the sides.
    EXPECT_EQ(pixel(2, 2), (Bytes{110, 110, 110})); // Red.
    EXPECT_EQ(
        pixel(1, 2), (Bytes{100, 100, 100})); // Green in a red line: red beside it, blue above and below.
    EXPECT_EQ(pixel(2, 1), (Bytes{70, 70, 70})); // Green in a blue line.
    EXPECT_EQ(pixel(0, 0), (Bytes{10, 35, 60})); // At the corner, the mosaic is mirrored.
}
