#include "tests/kit/picture/TestPicture.h"
#include "tools/kit/picture/PictureRenderer.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t red = 0xffff0000;
constexpr std::uint32_t blue = 0xff0000ff;
constexpr std::uint32_t side = 60;

/// One component of a picture of middle values.
struct ClippedCase
{
    std::string_view format;
    unsigned bits; ///< The bits that a component occupies in memory.
    std::uint64_t middle;
    std::size_t components; ///< Per pixel.
    std::size_t component;
    std::uint64_t value;
    std::uint32_t mark; ///< 0 if the value is not at an end of the range.
};

void PrintTo(const ClippedCase &row, std::ostream *stream)
{
    *stream << row.format << " component " << row.component << " = " << row.value;
}

class ClipMarksTest : public testing::TestWithParam<ClippedCase>
{ };

/// Returns true if the pixel and the output pixel overlap, where `side` pixels are shown by `size`.
bool overlaps(std::uint32_t pixel, std::uint32_t index, std::uint32_t size)
{
    return index * side < (pixel + 1) * size && (index + 1) * side > pixel * size;
}

TEST_P(ClipMarksTest, marksThePlaceOfEachClippedPixel)
{
    const ClippedCase row = GetParam();
    DisplaySettings settings;
    settings.hasClipMarks = true;
    PictureRenderer renderer;
    constexpr std::uint32_t x = 7; // For 8 output pixels, it is half in the first and half in the second one.
    constexpr std::uint32_t y = 31;
    for (const std::uint32_t size : {side, 8U, 7U}) {
        TestPicture picture(row.format, side, side);
        picture.fill(row.bits, row.middle);
        picture.set((y * side + x) * row.components + row.component, row.bits, row.value);
        std::vector<std::uint32_t> pixels(std::size_t(size) * size);
        renderer.render(picture.raw(), picture.region(), size, size, settings, pixels.data(), size);
        for (std::uint32_t i = 0; i < pixels.size(); ++i) {
            const bool isMarked = pixels[i] == red || pixels[i] == blue;
            const bool isInPlace = overlaps(x, i % size, size) && overlaps(y, i / size, size);
            EXPECT_EQ(isMarked ? pixels[i] : 0, isInPlace ? row.mark : 0) << "pixel " << i << " of " << size;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(formats, ClipMarksTest,
    testing::Values(ClippedCase{"Mono8", 8, 100, 1, 0, 255, red}, ClippedCase{"Mono8", 8, 100, 1, 0, 0, blue},
        ClippedCase{"Mono8", 8, 100, 1, 0, 254, 0}, ClippedCase{"Mono12p", 12, 2000, 1, 0, 4095, red},
        ClippedCase{"Mono12p", 12, 2000, 1, 0, 4094, 0}, ClippedCase{"Mono12p", 12, 2000, 1, 0, 1, 0},
        ClippedCase{"BayerRG12p", 12, 2000, 1, 0, 4095, red},
        ClippedCase{"BayerRG12p", 12, 2000, 1, 0, 0, blue}, ClippedCase{"RGB8", 8, 100, 3, 2, 255, red},
        ClippedCase{"RGB8", 8, 100, 3, 1, 0, blue}, ClippedCase{"RGBa8", 8, 100, 4, 3, 255, 0},
        ClippedCase{"YUV422_8", 8, 100, 2, 0, 255, red}, ClippedCase{"YUV422_8", 8, 100, 2, 1, 255, 0},
        ClippedCase{"YCbCr601_422_8", 8, 100, 2, 0, 235, red},
        ClippedCase{"YCbCr601_422_8", 8, 100, 2, 0, 10, blue}, ClippedCase{"Mono8s", 8, 10, 1, 0, 0x80, blue},
        ClippedCase{"Mono8s", 8, 10, 1, 0, 0x7F, red}, ClippedCase{"Mono8s", 8, 10, 1, 0, 0xFF, 0},
        ClippedCase{"Mono32", 32, 1U << 31U, 1, 0, 0xFFFFFFFF, red},
        ClippedCase{"Mono32", 32, 1U << 31U, 1, 0, 0xFFFFFFFE, 0},
        ClippedCase{"Mono32", 32, 1U << 31U, 1, 0, 0, blue}, ClippedCase{"Mono32", 32, 1U << 31U, 1, 0, 1, 0},
        ClippedCase{"BiColorRGBG8", 8, 100, 2, 1, 255, red},
        ClippedCase{"Data32f", 32, 0x3F800000, 1, 0, 0, 0}));

TEST(ClipMarksOrderTest, overexposureHidesUnderexposure)
{
    TestPicture picture("Mono8", 2, 1);
    picture.set(1, 8, 255);
    DisplaySettings settings;
    settings.hasClipMarks = true;
    std::uint32_t pixel = 0;
    PictureRenderer().render(picture.raw(), picture.region(), 1, 1, settings, &pixel, 1);
    EXPECT_EQ(pixel, red);
}

} // namespace
