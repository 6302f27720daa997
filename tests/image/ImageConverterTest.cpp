#include "sdk/image/ImageConverter.h"
#include "sdk/image/RawValues.h"
#include "tests/image/GuardedBytes.h"
#include "tests/image/KernelChoice.h"
#include "tests/image/ReferencePicture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

/// How the bytes of a tested picture relate to its lines.
enum class Filling
{
    Padded,
    Tight,
    Incomplete
};

struct Shape
{
    std::uint32_t width;
    std::uint32_t height;
    std::uint32_t padding;
    Filling filling;
};

const std::vector<Shape> shapes = {{1, 1, 0, Filling::Padded}, {1, 2, 1, Filling::Padded},
    {2, 1, 0, Filling::Tight}, {3, 3, 0, Filling::Tight}, {5, 2, 3, Filling::Padded},
    {7, 5, 2, Filling::Tight}, {18, 4, 0, Filling::Incomplete}, {33, 5, 6, Filling::Incomplete},
    {67, 9, 0, Filling::Tight}, {70, 6, 7, Filling::Padded}};

constexpr std::size_t capacity = 40000;
constexpr std::uint8_t canary = 0xA5;

/// A picture of random bytes, behind which no memory can be read.
class RandomPicture
{
public:
    RandomPicture() : m_bytes(capacity) { }

    void make(const ReferenceFormat &format, const Shape &shape, bool isBigEndian)
    {
        view = {nullptr, 0, shape.width, shape.height, shape.padding, format.code, isBigEndian};
        const std::size_t padded = ReferencePicture::paddedSize(view, format);
        view.size = shape.filling == Filling::Tight ? ReferencePicture::tightSize(view) : padded;
        if (shape.filling == Filling::Incomplete)
            view.size = random() % (padded - 1);
        std::uint8_t *const data = m_bytes.last(view.size);
        for (std::size_t i = 0; i < view.size; ++i)
            data[i] = static_cast<std::uint8_t>(random() >> 8U);
        view.data = data;
    }

    /// Returns the whole picture, or a random part of it.
    Region region(bool isWhole)
    {
        if (isWhole)
            return {0, 0, view.width, view.height};
        const auto x = static_cast<std::uint32_t>(random() % view.width);
        const auto y = static_cast<std::uint32_t>(random() % view.height);
        return {x, y, static_cast<std::uint32_t>(1 + random() % (view.width - x)),
            static_cast<std::uint32_t>(1 + random() % (view.height - y))};
    }

    RawImage view;
    std::minstd_rand random{20}; // The same pictures in every run.

private:
    GuardedBytes m_bytes;
};

std::string describe(const ReferenceFormat &format, const RawImage &picture, const PixelKernels &kernels)
{
    return std::string(format.name) + ", " + std::to_string(picture.width) + " x "
        + std::to_string(picture.height) + ", padding " + std::to_string(picture.paddingX) + ", "
        + std::to_string(picture.size) + " bytes, " + (picture.isBigEndian ? "big" : "little") + "-endian, "
        + kernels.name;
}

using Expected = std::vector<double>;

/// Returns what a region should become, `channels` values per pixel.
template <typename Pixel>
Expected expectedRegion(const Region &region, unsigned channels, const Pixel &pixel)
{
    Expected result;
    for (std::uint32_t y = region.y; y < region.y + region.height; ++y) {
        for (std::uint32_t x = region.x; x < region.x + region.width; ++x) {
            const auto values = pixel(static_cast<int>(x), static_cast<int>(y));
            result.insert(result.end(), values.begin(), values.begin() + channels);
        }
    }
    return result;
}

/// Returns the first difference between lines of `stride` samples and what is expected, or nothing. Whatever
/// lies between the lines has to be untouched.
template <typename Sample>
std::string difference(const std::vector<Sample> &output, std::size_t stride, std::size_t lineSize,
    const Expected &expected, double tolerance)
{
    for (std::size_t i = 0; i < output.size(); ++i) {
        const std::size_t line = i / stride;
        const std::size_t column = i % stride;
        const bool isUsed = column < lineSize && line * lineSize < expected.size();
        const double wanted = isUsed ? expected[line * lineSize + column] : canary;
        if (std::abs(output[i] - wanted) > (isUsed ? tolerance : 0))
            return "line " + std::to_string(line) + ", sample " + std::to_string(column) + ": "
                + std::to_string(output[i]) + " instead of " + std::to_string(wanted);
    }
    return {};
}

/// Converts a region of random pictures of every format with every set of kernels, and compares the result
/// with the reference. `Conversion` has to return what is expected and to convert.
template <typename Sample, typename Conversion>
void compareEveryFormat(const Conversion &conversion)
{
    RandomPicture picture;
    std::vector<ImageConverter> converters;
    const auto kernels = runnableKernels();
    for (const PixelKernels *set : kernels)
        converters.emplace_back(*set);
    for (const ReferenceFormat &format : referenceFormats()) {
        for (const Shape &shape : shapes) {
            picture.make(format, shape, picture.random() % 2 != 0);
            const Region region = picture.region(picture.random() % 2 != 0);
            const ReferencePicture reference(picture.view, format);
            const Demosaicing demosaicing
                = picture.random() % 2 != 0 ? Demosaicing::Bilinear : Demosaicing::EdgeAware;
            const Expected expected = conversion.expected(reference, region, demosaicing);
            const std::size_t lineSize = expected.size() / region.height;
            const std::size_t stride = lineSize + 3;
            for (std::size_t i = 0; i < kernels.size(); ++i) {
                std::vector<Sample> output(stride * region.height + 8, canary);
                conversion.convert(converters[i], picture.view, region, demosaicing, output.data(), stride);
                // Colours from luma and chroma are exact but for the rounding of the weights.
                const double tolerance = format.kind == PixelKind::Yuv ? conversion.yuvTolerance : 0;
                ASSERT_EQ(difference(output, stride, lineSize, expected, tolerance), "")
                    << describe(format, picture.view, *kernels[i]);
            }
        }
    }
}

struct ScreenConversion
{
    static constexpr double yuvTolerance = 0.6;

    static Expected expected(const ReferencePicture &reference, const Region &region, Demosaicing demosaicing)
    {
        return expectedRegion(region, reference.isGrey() ? 1 : 3,
            [&](int x, int y) { return reference.screen(x, y, demosaicing); });
    }
    static void convert(ImageConverter &converter, const RawImage &picture, const Region &region,
        Demosaicing demosaicing, std::uint8_t *output, std::size_t stride)
    {
        converter.toScreen(picture, {region, region.width, region.height, demosaicing}, output, stride);
    }
};

struct WordConversion
{
    static constexpr double yuvTolerance = 0;

    static Expected expected(const ReferencePicture &reference, const Region &region, Demosaicing)
    {
        return expectedRegion(region, reference.rawChannels(), [&](int x, int y) {
            std::array<double, 4> words{};
            for (unsigned channel = 0; channel < reference.rawChannels(); ++channel)
                words[channel] = reference.word(x, y, channel);
            return words;
        });
    }
    static void convert(ImageConverter &converter, const RawImage &picture, const Region &region, Demosaicing,
        std::uint16_t *output, std::size_t stride)
    {
        converter.toWords(picture, region, output, stride);
    }
};

struct ColorWordConversion
{
    static constexpr double yuvTolerance = 1;

    static Expected expected(const ReferencePicture &reference, const Region &region, Demosaicing demosaicing)
    {
        return expectedRegion(
            region, 3, [&](int x, int y) { return reference.colorWord(x, y, demosaicing); });
    }
    static void convert(ImageConverter &converter, const RawImage &picture, const Region &region,
        Demosaicing demosaicing, std::uint16_t *output, std::size_t stride)
    {
        converter.toColorWords(picture, region, demosaicing, output, stride);
    }
};

} // namespace

TEST(ImageConverter, everyFormatBecomesTheScreenOfTheReference)
{
    compareEveryFormat<std::uint8_t>(ScreenConversion());
}

TEST(ImageConverter, everyFormatBecomesTheWordsOfTheReference)
{
    compareEveryFormat<std::uint16_t>(WordConversion());
}

TEST(ImageConverter, everyFormatBecomesTheColorWordsOfTheReference)
{
    compareEveryFormat<std::uint16_t>(ColorWordConversion());
}

TEST(ImageConverter, rawValuesAreThoseOfTheReference)
{
    RandomPicture picture;
    for (const ReferenceFormat &format : referenceFormats()) {
        for (const Shape &shape : shapes) {
            picture.make(format, shape, picture.random() % 2 != 0);
            const ReferencePicture reference(picture.view, format);
            const Region pixel = picture.region(false);
            const RawValues values = rawValues(picture.view, pixel.x, pixel.y);
            const auto x = static_cast<int>(pixel.x);
            const auto y = static_cast<int>(pixel.y);
            SCOPED_TRACE(describe(format, picture.view, plainKernels()));
            ASSERT_EQ(values.count, reference.rawChannels());
            for (unsigned channel = 0; channel < values.count; ++channel) {
                const double expected = reference.raw(x, y, channel);
                const double actual = values.values[channel];
                ASSERT_TRUE(actual == expected || (std::isnan(actual) && std::isnan(expected)))
                    << x << ", " << y << ", channel " << channel << ": " << actual << ", " << expected;
            }
            ASSERT_EQ(values.color.has_value(), format.kind == PixelKind::Bayer);
            ASSERT_TRUE(
                !values.color || "RGB"[static_cast<int>(*values.color)] == reference.bayerColor(x, y));
        }
    }
}

TEST(ImageConverter, unknownFormatsAreShownAsBytes)
{
    const std::vector<std::uint8_t> bytes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const std::vector<std::pair<std::uint32_t, std::vector<std::uint8_t>>> expected
        = {{0x81080FFF, {1, 2, 3, 4, 5, 6}}, // A vendor's own format of 8 bits.
            {0x81100FFF, {1, 3, 5, 7, 9, 11}}, // The same with 16 bits.
            {0x810C0FFF, {1, 2, 4, 6, 7, 9}}, // Lines of 5 bytes, because 3 pixels have 36 bits.
            {0, {1, 2, 3, 4, 5, 6}}};
    for (const auto &[code, screen] : expected) {
        std::vector<std::uint8_t> output(6);
        ImageConverter().toScreen(
            {bytes.data(), bytes.size(), 3, 2, 0, code, false}, {{0, 0, 3, 2}, 3, 2}, output.data(), 3);
        EXPECT_EQ(output, screen) << std::hex << code;
    }
}

TEST(ImageConverter, cornersOfAnEightKPictureAreThoseOfTheReference)
{
    constexpr std::uint32_t width = 7680;
    constexpr std::uint32_t height = 4320;
    for (const ReferenceFormat &format : referenceFormats()) {
        const std::string_view name = format.name;
        if (name != "Mono12p" && name != "BayerRG8" && name != "RGB8_Planar" && name != "YUV422_8")
            continue;
        std::vector<std::uint8_t> bytes(std::size_t(width) * height * bitsPerPixel(format.code) / 8);
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<std::uint8_t>(i * 2654435761U >> 13U);
        const RawImage picture = {bytes.data(), bytes.size(), width, height, 0, format.code, false};
        const ReferencePicture reference(picture, format);
        for (const std::uint32_t x : {0U, width - 20}) {
            for (const std::uint32_t y : {0U, height - 3}) {
                const Region corner = {x, y, 20, 3};
                const Expected expected
                    = ScreenConversion::expected(reference, corner, Demosaicing::Bilinear);
                const std::size_t lineSize = expected.size() / 3;
                std::vector<std::uint8_t> output(expected.size());
                ImageConverter converter;
                ScreenConversion::convert(
                    converter, picture, corner, Demosaicing::Bilinear, output.data(), lineSize);
                ASSERT_EQ(
                    difference(output, lineSize, lineSize, expected, ScreenConversion::yuvTolerance), "")
                    << name << " at " << x << ", " << y;
            }
        }
    }
}
