#include "tools/kit/picture/PictureRenderer.h"

#include "sdk/image/PixelFormat.h"
#include "tests/kit/picture/TestPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t unknownFormat = 0x02183333;
constexpr std::uint32_t untouched = 0x12345678;

struct OutputSize
{
    std::uint32_t width;
    std::uint32_t height;
};

using Pixels = std::vector<std::uint32_t>;

Pixels render(PictureRenderer &renderer, const RawImage &picture, const Region &region, OutputSize size,
    const DisplaySettings &settings)
{
    const std::size_t stride = size.width + 3;
    Pixels padded(stride * size.height, untouched);
    renderer.render(picture, region, size.width, size.height, settings, padded.data(), stride);
    Pixels result;
    for (std::size_t i = 0; i < padded.size(); ++i) {
        if (i % stride < size.width)
            result.push_back(padded[i]);
        else
            EXPECT_EQ(padded[i], untouched) << "behind line " << i / stride;
    }
    return result;
}

Pixels fromBytes(const std::vector<std::uint8_t> &bytes, unsigned channels)
{
    Pixels result;
    for (std::size_t i = 0; i < bytes.size(); i += channels) {
        const bool isGrey = channels == 1;
        result.push_back(0xff000000U | unsigned(bytes[i]) << 16U | unsigned(bytes[isGrey ? i : i + 1]) << 8U
            | bytes[isGrey ? i : i + 2]);
    }
    return result;
}

Pixels screenPixels(const RawImage &picture, const Region &region, OutputSize size, Demosaicing demosaicing)
{
    const unsigned channels = ImageConverter::screenChannels(picture.pixelFormat);
    std::vector<std::uint8_t> bytes(std::size_t(size.width) * size.height * channels);
    ImageConverter().toScreen(picture, {region, size.width, size.height, demosaicing}, bytes.data(),
        std::size_t(size.width) * channels);
    return fromBytes(bytes, channels);
}

/// Applies the settings to each pixel of the region, then lets the converter scale the bytes.
Pixels expectedPixels(
    const RawImage &picture, const Region &region, OutputSize size, const DisplaySettings &settings)
{
    const PixelFormat *const format = findPixelFormat(picture.pixelFormat);
    const double highest = std::pow(2, std::min<int>(format ? format->depth : 8, 16)) - 1;
    const bool isGrey = ImageConverter::screenChannels(picture.pixelFormat) == 1;
    std::vector<std::uint16_t> words(std::size_t(3) * region.width * region.height);
    ImageConverter().toColorWords(
        picture, region, settings.demosaicing, words.data(), std::size_t(3) * region.width);
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const double gain = isGrey ? 1 : settings.gains[i % 3];
        const double share = (words[i] / highest * gain - settings.curve.black)
            / (settings.curve.white - settings.curve.black);
        const double brightness = std::pow(std::clamp(share, 0.0, 1.0), 1 / settings.curve.gamma);
        bytes.push_back(static_cast<std::uint8_t>(std::lround(brightness * 255)));
    }
    const RawImage bright{
        bytes.data(), bytes.size(), region.width, region.height, 0, findPixelFormat("RGB8")->code, false};
    return screenPixels(bright, {0, 0, region.width, region.height}, size, Demosaicing::Bilinear);
}

/// Returns the largest difference of two bytes. A value between two levels may be rounded either way.
int largestDifference(const Pixels &first, const Pixels &second)
{
    if (first.size() != second.size())
        return 256;
    int result = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        for (unsigned shift = 0; shift < 32; shift += 8) {
            const auto byte
                = [shift](std::uint32_t pixel) { return static_cast<int>(pixel >> shift & 0xFFU); };
            result = std::max(result, std::abs(byte(first[i]) - byte(second[i])));
        }
    return result;
}

class PictureRendererTest : public testing::TestWithParam<std::uint32_t>
{ };

std::uint32_t code(std::string_view name)
{
    return findPixelFormat(name)->code;
}

TEST_P(PictureRendererTest, neutralPictureIsThatOfTheConverter)
{
    const TestPicture picture = TestPicture(GetParam(), 40, 24).fillRandomly();
    PictureRenderer renderer;
    DisplaySettings settings;
    settings.demosaicing = Demosaicing::EdgeAware;
    for (const OutputSize size : {OutputSize{36, 20}, OutputSize{17, 9}, OutputSize{5, 20}}) {
        const Region region{4, 2, 36, 20};
        EXPECT_EQ(render(renderer, picture.raw(), region, size, settings),
            screenPixels(picture.raw(), region, size, Demosaicing::EdgeAware));
    }
}

TEST_P(PictureRendererTest, settingsActOnFullDepth)
{
    const TestPicture picture = TestPicture(GetParam(), 40, 24).fillRandomly();
    const Region region{2, 2, 38, 21};
    PictureRenderer renderer; // The same one for all settings: nothing of the previous ones is left.
    for (const ContrastCurve curve :
        {ContrastCurve{0.1, 0.6, 1}, ContrastCurve{0, 1, 2.2}, ContrastCurve{}}) {
        for (const std::array<double, 3> gains : {std::array{1.0, 1.0, 1.0}, std::array{1.5, 1.0, 0.7}}) {
            const DisplaySettings settings{Demosaicing::Bilinear, curve, gains, false};
            if (curve.isNeutral() && gains[0] == 1)
                continue;
            for (const OutputSize size : {OutputSize{38, 21}, OutputSize{11, 8}}) {
                const bool isNeutral = curve.isNeutral() && ImageConverter::screenChannels(GetParam()) == 1;
                const Pixels expected = isNeutral
                    ? screenPixels(picture.raw(), region, size, Demosaicing::Bilinear)
                    : expectedPixels(picture.raw(), region, size, settings);
                const Pixels pixels = render(renderer, picture.raw(), region, size, settings);
                EXPECT_LE(largestDifference(pixels, expected), 1);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(formats, PictureRendererTest,
    testing::Values(code("Mono8"), code("Mono1p"), code("Mono12p"), code("Mono16"), code("Mono8s"),
        code("BayerRG12p"), code("BayerGB8"), code("RGB8"), code("RGB565p"), code("RGB12"), code("YUV422_8"),
        code("BiColorRGBG8"), code("Data32f"), unknownFormat));

TEST(PictureRendererDepthTest, curveSeparatesValuesBelowEightBits)
{
    TestPicture picture("Mono12p", 16, 1);
    Pixels expected;
    for (unsigned x = 0; x < 16; ++x) {
        picture.set(x, 12, 1600 + x);
        expected.push_back(0xff000000U | 17 * x * 0x010101U);
    }
    DisplaySettings settings;
    settings.curve = {1600 / 4095.0, 1615 / 4095.0, 1};
    PictureRenderer renderer;
    EXPECT_EQ(render(renderer, picture.raw(), picture.region(), {16, 1}, settings), expected);
}

TEST(PictureRendererDepthTest, missingPixelsAreZero)
{
    TestPicture picture("Mono12p", 8, 8);
    picture.fill(12, 2048);
    picture.cut(picture.raw().size / 2);
    DisplaySettings settings;
    settings.curve = {0, 0.5, 1};
    PictureRenderer renderer;
    Pixels expected(32, 0xffffffff);
    expected.resize(64, 0xff000000);
    EXPECT_EQ(render(renderer, picture.raw(), picture.region(), {8, 8}, settings), expected);
}

} // namespace

TEST(PictureRendererTest, correctionIsAppliedOnceAndAtThePlaceOfThePicture)
{
    TestPicture picture("Mono8", 8, 4);
    picture.fill(8, 50);
    const FlatField field{3, 2, 8, 4, 8, 0, std::vector<float>(32, 10), std::vector<float>(32, 1)};
    DisplaySettings settings;
    settings.correction = std::make_shared<Correction>(std::nullopt, field);
    PictureRenderer renderer;
    const auto shown = [&] { return render(renderer, picture.raw(), {1, 1, 4, 2}, {4, 2}, settings); };
    EXPECT_EQ(shown(), Pixels(8, 0xff323232)); // The field does not cover the sensor's first pixels.
    renderer.setPlace(3, 2);
    EXPECT_EQ(shown(), Pixels(8, 0xff282828));
    settings.curve.white = 0.5;
    EXPECT_EQ(shown(), Pixels(8, 0xff505050));
    settings.correction = nullptr;
    EXPECT_EQ(shown(), Pixels(8, 0xff646464));
}
