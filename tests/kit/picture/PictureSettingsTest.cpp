#include "tests/kit/picture/TestPicture.h"
#include "tools/kit/picture/AutoContrast.h"
#include "tools/kit/picture/PictureRenderer.h"
#include "tools/kit/picture/WhiteBalance.h"

#include <gtest/gtest.h>

namespace {

TestPicture colored(std::array<unsigned, 3> color)
{
    TestPicture picture("RGB8", 20, 20);
    for (std::size_t i = 0; i < 1200; ++i)
        picture.set(i, 8, color[i % 3]);
    return picture;
}

TEST(WhiteBalanceTest, greyPatchBecomesGrey)
{
    const TestPicture picture = colored({100, 200, 50});
    const WhiteBalance balance = whiteBalance(picture.raw(), {2, 2, 5, 5});
    EXPECT_EQ(balance.patch, GreyPatch::Usable);
    EXPECT_NEAR(balance.gains[0], 2, 1e-9);
    EXPECT_EQ(balance.gains[1], 1);
    EXPECT_NEAR(balance.gains[2], 4, 1e-9);

    DisplaySettings settings;
    settings.gains = balance.gains;
    std::uint32_t pixel = 0;
    PictureRenderer().render(picture.raw(), {3, 3, 1, 1}, 1, 1, settings, &pixel, 1);
    EXPECT_EQ(pixel, 0xffc8c8c8U);
}

TEST(WhiteBalanceTest, bayerColorsAreToldApart)
{
    TestPicture picture("BayerRG12p", 16, 16);
    for (std::size_t i = 0; i < 256; ++i) {
        const bool isOddLine = i / 16 % 2 != 0;
        const bool isOddColumn = i % 2 != 0;
        picture.set(i, 12, isOddLine != isOddColumn ? 1200 : isOddLine ? 400 : 800);
    }
    const WhiteBalance balance = whiteBalance(picture.raw(), {3, 4, 6, 5});
    EXPECT_EQ(balance.patch, GreyPatch::Usable);
    EXPECT_NEAR(balance.gains[0], 1.5, 1e-9);
    EXPECT_NEAR(balance.gains[2], 3, 1e-9);
}

TEST(WhiteBalanceTest, uselessPatchIsRefused)
{
    const TestPicture grey("Mono8", 8, 8);
    EXPECT_EQ(whiteBalance(grey.raw(), grey.region()).patch, GreyPatch::WithoutColor);
    const TestPicture dark = colored({100, 4, 100});
    EXPECT_EQ(whiteBalance(dark.raw(), dark.region()).patch, GreyPatch::TooDark);
    TestPicture bright = colored({100, 100, 100});
    for (const std::size_t pixel : {5U, 50U, 100U, 200U}) // 1 % of the pixels.
        bright.set(pixel * 3, 8, 255);
    EXPECT_EQ(whiteBalance(bright.raw(), bright.region()).patch, GreyPatch::Usable);
    bright.set(1000, 8, 255);
    EXPECT_EQ(whiteBalance(bright.raw(), bright.region()).patch, GreyPatch::Clipped);
}

TEST(AutoContrastTest, leavesOutTheOutermostPixels)
{
    TestPicture picture("Mono12p", 1000, 10);
    for (std::size_t i = 0; i < 10000; ++i)
        picture.set(i, 12, i < 10 ? 0 : i >= 9990 ? 4095 : 1000 + i % 1000);
    DisplaySettings settings;
    settings.curve.gamma = 1.8;
    settings.gains = {3, 3, 3}; // Grey pictures have no white balance.
    const ContrastCurve curve = autoContrast(picture.raw(), picture.region(), settings);
    EXPECT_NEAR(curve.black * 4095, 1000, 1.5);
    EXPECT_NEAR(curve.white * 4095, 1999, 1.5);
    EXPECT_EQ(curve.gamma, 1.8);
}

TEST(AutoContrastTest, coversAllColorsWithTheirGains)
{
    const TestPicture picture = colored({100, 200, 50});
    DisplaySettings settings;
    settings.gains = {1.2, 1, 0.5};
    const ContrastCurve curve = autoContrast(picture.raw(), {0, 0, 10, 10}, settings);
    EXPECT_NEAR(curve.black * 255, 25, 1e-6);
    EXPECT_NEAR(curve.white * 255, 200, 1e-6);
}

TEST(AutoContrastTest, evenPictureHasACurveToo)
{
    for (const unsigned value : {0U, 128U, 255U}) {
        TestPicture picture("Mono8", 8, 8);
        picture.fill(8, value);
        const ContrastCurve curve = autoContrast(picture.raw(), picture.region(), {});
        EXPECT_LT(curve.black, curve.white);
        EXPECT_GE(curve.black, 0);
        EXPECT_LE(curve.white, 1);
    }
}

} // namespace
