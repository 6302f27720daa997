// These tests look for the round targets of the simulator's chart, whose true shape is known.

#include "tools/kit/measure/linescan/RoundTarget.h"
#include "tests/kit/measure/linescan/RolledPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t eightBits = 0x01080001;
constexpr std::uint32_t sixteenBits = 0x01100007;

/// A drawn disc or ring with soft borders.
RolledPicture drawn(double halfWidth, double halfHeight, double shear, double hole)
{
    constexpr int width = 400;
    constexpr int height = 360;
    RolledPicture picture;
    picture.bytes.resize(width * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double right = x + 0.5 - 205.3;
            const double down = y + 0.5 - 171.6 + shear * right;
            const double distance = std::hypot(right / halfWidth, down / halfHeight);
            const double edge = std::min((1 - distance) * halfWidth, (distance - hole) * halfWidth);
            const double share = std::clamp(edge + 0.5, 0.0, 1.0);
            picture.bytes[static_cast<std::size_t>(y * width + x)]
                = static_cast<std::uint8_t>(200 - 170 * share);
        }
    picture.raw = {picture.bytes.data(), picture.bytes.size(), width, height, 0, eightBits, false};
    return picture;
}

} // namespace

TEST(RoundTarget, drawnShapesAreMeasuredBetweenThePixels)
{
    RoundTargetFinder finder;
    for (const double hole : {-1.0, 0.7})
        for (const double ratio : {0.5, 0.92, 1.0, 1.08, 1.6}) {
            const RolledPicture picture = drawn(90, 90 * ratio, 0, hole);
            const TargetSearch search = finder.find(picture.raw);
            ASSERT_TRUE(search.target) << hole << ' ' << ratio;
            EXPECT_NEAR(search.target->heightToWidth(), ratio, 0.002 * ratio);
            EXPECT_NEAR(search.target->ellipse.centerX, 205.3, 0.1);
            EXPECT_NEAR(search.target->ellipse.centerY, 171.6, 0.1);
            EXPECT_NEAR(search.target->turnDegrees(), 0, 0.1);
            EXPECT_FALSE(search.target->isBright);
        }
}

TEST(RoundTarget, turnedCameraShearsButKeepsTheRatio)
{
    constexpr double angle = 5 * 3.14159265358979 / 180;
    // x' = x / cos(angle), y' = y - x tan(angle).
    const RolledPicture picture = drawn(90 / std::cos(angle), 90, std::sin(angle), -1);
    const TargetSearch search = RoundTargetFinder().find(picture.raw);
    ASSERT_TRUE(search.target);
    EXPECT_NEAR(search.target->heightToWidth(), 1, 0.002);
    EXPECT_NEAR(search.target->turnDegrees(), 5, 0.1);
}

TEST(RoundTarget, circlesOfTheChartAreMeasuredAtEveryRate)
{
    RoundTargetFinder finder;
    for (const double lines : {0.6, 0.92, 1.0, 1.08, 1.5}) {
        const RolledPicture picture = rolled(640, static_cast<int>(480 * lines), lines, 0.3);
        const TargetSearch search = finder.find(picture.raw);
        ASSERT_TRUE(search.target) << lines;
        EXPECT_NEAR(search.target->heightToWidth(), lines, 0.006 * lines);
        EXPECT_NEAR(search.target->ellipse.halfWidth, 28.5 * 4.8, 2); // The ring around the large star.
    }
}

TEST(RoundTarget, wideSensorIsMeasuredOnAReducedPicture)
{
    const RolledPicture picture = rolled(16384, 1024, 1.08, 0.3);
    const TargetSearch search = RoundTargetFinder().find(picture.raw);
    ASSERT_TRUE(search.target);
    EXPECT_NEAR(search.target->heightToWidth(), 1.08, 0.007);
}

TEST(RoundTarget, wordsAreMeasuredAsBytesAre)
{
    const RolledPicture picture = rolled(640, 480, 1, 0, sixteenBits);
    const TargetSearch search = RoundTargetFinder().find(picture.raw);
    ASSERT_TRUE(search.target);
    EXPECT_NEAR(search.target->heightToWidth(), 1, 0.005);
}

TEST(RoundTarget, columnsChooseAnotherTarget)
{
    RoundTargetFinder finder;
    const RolledPicture picture = rolled(640, 480, 1);
    const TargetSearch largest = finder.find(picture.raw);
    ASSERT_TRUE(largest.target);
    const TargetSearch inside = finder.find(picture.raw, {0, 0, 110.0});
    ASSERT_TRUE(inside.target);
    EXPECT_LT(inside.target->ellipse.centerX, 160);
    EXPECT_NEAR(inside.target->heightToWidth(), 1, 0.015);
    const TargetSearch region = finder.find(picture.raw, {20, 150, {}});
    ASSERT_TRUE(region.target);
    EXPECT_NEAR(region.target->ellipse.centerX, inside.target->ellipse.centerX, 1);
    EXPECT_LT(region.target->ellipse.halfWidth, largest.target->ellipse.halfWidth / 2);
}

TEST(RoundTarget, clippedTargetsAreNotMeasured)
{
    const RolledPicture picture = drawn(90, 90, 0, -1);
    RawImage upper = picture.raw;
    upper.height = 200; // The disc ends at line 261.
    upper.size = static_cast<std::size_t>(upper.width) * upper.height;
    const TargetSearch search = RoundTargetFinder().find(upper);
    EXPECT_FALSE(search.target);
    EXPECT_NE(toEnglish(search.problem).find("no complete round target in the picture of 200 lines"),
        std::string::npos);
}

TEST(RoundTarget, unevenMovementIsNamed)
{
    RolledPicture picture = drawn(90, 90, 0, -1);
    for (std::size_t y = 0; y < 360; ++y) { // The lines sway by 4 pixels.
        const auto line = picture.bytes.begin() + static_cast<std::ptrdiff_t>(y * 400);
        std::rotate(line, line + std::lround(4 + 4 * std::sin(static_cast<double>(y) / 6)), line + 400);
    }
    const TargetSearch search = RoundTargetFinder().find(picture.raw);
    EXPECT_FALSE(search.target);
    EXPECT_NE(toEnglish(search.problem).find("border of the round target is uneven"), std::string::npos);
}

TEST(RoundTarget, capOnTheLensIsNamed)
{
    std::vector<std::uint8_t> bytes(200 * 200);
    for (std::size_t i = 0; i < bytes.size(); ++i) // Noise in the dark.
        bytes[i] = static_cast<std::uint8_t>(3 + i * 7919 % 4);
    const RawImage dark{bytes.data(), bytes.size(), 200, 200, 0, eightBits, false};
    EXPECT_NE(
        toEnglish(RoundTargetFinder().find(dark).problem).find("too little contrast"), std::string::npos);
}
