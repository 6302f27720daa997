#include "tests/simulator/RenderedPicture.h"

#include <gtest/gtest.h>

// The test patterns are exact: any receiver can compare every pixel with them.

namespace {
RenderedPicture pattern(TestPattern pattern, std::uint32_t pixelFormat, std::uint64_t frameNumber = 0)
{
    SensorModel model = flawlessSensor(64, 32);
    model.isColor = pixelFormat == bayerRG8 || pixelFormat == rgb8;
    RenderSettings settings = wholeSensor(model, pixelFormat);
    settings.testPattern = pattern;
    settings.frameNumber = frameNumber;
    settings.offsetX = 8;
    settings.offsetY = 4;
    settings.width = 56;
    settings.height = 28;
    return render(model, settings);
}

/// Calls the function with each pixel of the region and its place in the whole picture.
template <typename Function>
void forEachPixel(const RenderedPicture &picture, Function function)
{
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            function(picture.at(x, y), x + 8, y + 4);
}
} // namespace

TEST(TestPatterns, BlackAndWhiteAreTheExtremes)
{
    forEachPixel(pattern(TestPattern::Black, mono8), [](int value, int, int) { EXPECT_EQ(value, 0); });
    forEachPixel(pattern(TestPattern::White, mono8), [](int value, int, int) { EXPECT_EQ(value, 255); });
    forEachPixel(pattern(TestPattern::White, mono16), [](int value, int, int) { EXPECT_EQ(value, 65535); });
    forEachPixel(pattern(TestPattern::White, bayerRG12), [](int value, int, int) { EXPECT_EQ(value, 4095); });
}

TEST(TestPatterns, RampsRiseOverTheWholePicture)
{
    forEachPixel(pattern(TestPattern::GreyHorizontalRamp, mono8),
        [](int value, int x, int) { EXPECT_EQ(value, x * 4); });
    forEachPixel(pattern(TestPattern::GreyVerticalRamp, mono16),
        [](int value, int, int y) { EXPECT_EQ(value, y * 2048); });
}

TEST(TestPatterns, MovingRampsMoveByAPixelPerPicture)
{
    forEachPixel(pattern(TestPattern::GreyHorizontalRampMoving, mono8, 70),
        [](int value, int x, int) { EXPECT_EQ(value, (x + 70) % 64 * 4); });
    forEachPixel(pattern(TestPattern::GreyVerticalRampMoving, mono8, 70),
        [](int value, int, int y) { EXPECT_EQ(value, (y + 70) % 32 * 8); });
}

TEST(TestPatterns, ColorBarHasEightColors)
{
    // White, yellow, cyan, green, magenta, red, blue, black.
    constexpr int colors[8][3]{
        {1, 1, 1}, {1, 1, 0}, {0, 1, 1}, {0, 1, 0}, {1, 0, 1}, {1, 0, 0}, {0, 0, 1}, {0, 0, 0}};
    RenderedPicture rgb = pattern(TestPattern::ColorBar, rgb8);
    for (int y = 0; y < rgb.height; ++y)
        for (int x = 0; x < rgb.width; ++x)
            for (int channel = 0; channel < 3; ++channel)
                EXPECT_EQ(rgb.values.at(static_cast<std::size_t>((y * rgb.width + x) * 3 + channel)),
                    colors[(x + 8) / 8][channel] * 255);
    forEachPixel(pattern(TestPattern::ColorBar, bayerRG8),
        [&](int value, int x, int y) { EXPECT_EQ(value, colors[x / 8][x % 2 + y % 2] * 255); });
    forEachPixel(pattern(TestPattern::ColorBar, mono8),
        [](int value, int x, int) { EXPECT_EQ(value, (7 - x / 8) * 255 / 7); });
}

TEST(TestPatterns, FrameCounterLiesOverTheLivePicture)
{
    const RenderedPicture live = pattern(TestPattern::Off, mono8, 17);
    const RenderedPicture counted = pattern(TestPattern::FrameCounter, mono8, 17);
    // The digits 17 of 5 × 7 dots, each of which has 4 × 4 pixels, 4 pixels from the corner. The last row of
    // the digits ends below the region.
    const char *const rows[6]{
        "..#...#####", ".##.......#", "..#......#.", "..#.....#..", "..#....#...", "..#....#..."};
    forEachPixel(counted, [&](int value, int x, int y) {
        const int column = (x - 12) / 4;
        const int row = (y - 8) / 4;
        const bool isInDigits = x >= 12 && y >= 8 && column < 12;
        if (!isInDigits)
            EXPECT_EQ(value, live.at(x - 8, y - 4));
        else
            EXPECT_EQ(value, column < 11 && rows[row][column] == '#' ? 255 : 0) << column << ' ' << row;
    });
}
