#include "tests/kit/picture/TestPicture.h"
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

} // namespace
