#include "sdk/image/PixelLayout.h"
#include "sdk/image/RawValues.h"
#include "tests/kit/measure/TestBytes.h"
#include "tools/kit/measure/PictureMeter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>

// Every format is measured, and each component is compared with a plain computation from single pixels.

namespace {

constexpr std::uint32_t testWidth = 21;
constexpr std::uint32_t testHeight = 10;
constexpr Region testRegion = {3, 1, 15, 7};

using Values = std::map<MeasuredComponent, std::vector<double>>;

MeasuredComponent componentAt(
    const PixelFormat &format, const RawValues &pixel, unsigned index, std::uint32_t x)
{
    using C = MeasuredComponent;
    if (pixel.color)
        return std::array{C::Red, C::Green, C::Blue}[static_cast<std::size_t>(*pixel.color)];
    if (format.kind == PixelKind::BiColor) {
        const bool isRed = (x % 2 == 0) == (std::string_view(format.name) == "BiColorRGBG8");
        return index == 1 ? C::Green : isRed ? C::Red : C::Blue;
    }
    if (format.kind == PixelKind::Rgb)
        return std::array{C::Red, C::Green, C::Blue, C::Alpha}[index];
    if (format.kind == PixelKind::Yuv)
        return std::array{C::Luma, C::ChromaBlue, C::ChromaRed}[index];
    if (format.components == 1)
        return C::Grey;
    return std::array{C::First, C::Second, C::Third, C::Fourth}[index];
}

Values valuesIn(const RawImage &picture, const PixelFormat &format)
{
    Values values;
    for (std::uint32_t y = testRegion.y; y < testRegion.y + testRegion.height; ++y) {
        for (std::uint32_t x = testRegion.x; x < testRegion.x + testRegion.width; ++x) {
            const RawValues pixel = rawValues(picture, x, y);
            for (unsigned i = 0; i < pixel.count; ++i)
                if (std::isfinite(pixel.values[i]))
                    values[componentAt(format, pixel, i, x)].push_back(pixel.values[i]);
        }
    }
    return values;
}

/// Returns random bytes; floating-point numbers are not too large to be added.
ByteVector randomBytes(const PixelLayout &layout)
{
    std::mt19937 random(layout.format.code);
    const std::size_t bits = layout.packing == Packing::Unknown && layout.format.code == 0
        ? 8
        : bitsPerPixel(layout.format.code);
    ByteVector bytes(testHeight * ((testWidth * bits + 7) / 8) + 64);
    for (std::uint8_t &byte : bytes)
        byte = static_cast<std::uint8_t>(random());
    if (layout.number != Number::Float)
        return bytes;
    std::vector<double> numbers(bytes.size() / 4);
    for (double &number : numbers)
        number = static_cast<double>(random()) - 2e9;
    ByteVector result = layout.format.depth == 64
        ? bytesOf(numbers)
        : bytesOf(std::vector<float>(numbers.begin(), numbers.end()));
    result.resize(bytes.size());
    return result;
}

} // namespace

TEST(FormatsTest, everyFormatIsMeasuredLikeItsSinglePixels)
{
    PictureMeter meter;
    for (const PixelLayout &layout : pixelLayouts()) {
        SCOPED_TRACE(layout.format.name);
        const ByteVector bytes = randomBytes(layout);
        const RawImage picture{bytes.data(), bytes.size(), testWidth, testHeight, 0, layout.format.code};
        const Measurements result = meter.measure(picture, {true, testRegion, true, std::nullopt});
        const Values expected = valuesIn(picture, layout.format);
        ASSERT_EQ(result.statistics.size(), expected.size());
        for (std::size_t i = 0; i < result.statistics.size(); ++i) {
            const ComponentStatistics &statistics = result.statistics[i];
            const std::vector<double> &values = expected.at(statistics.component);
            double sum = 0;
            for (const double value : values)
                sum += value;
            const double mean = sum / static_cast<double>(values.size());
            double squares = 0;
            for (const double value : values)
                squares += (value - mean) * (value - mean);
            const double deviation = std::sqrt(squares / static_cast<double>(values.size() - 1));
            const double tolerance = 1e-9 * (deviation + 1);
            EXPECT_EQ(statistics.pixels, values.size());
            EXPECT_EQ(statistics.minimum, *std::min_element(values.begin(), values.end()));
            EXPECT_EQ(statistics.maximum, *std::max_element(values.begin(), values.end()));
            EXPECT_NEAR(statistics.mean, mean, tolerance);
            EXPECT_NEAR(statistics.deviation, deviation, tolerance);

            const ComponentHistogram &histogram = result.histogram->components.at(i);
            std::vector<std::uint64_t> counts(histogram.counts.size());
            for (const double value : values) {
                const double bin = (value - result.histogram->lowest) / result.histogram->binWidth;
                ++counts.at(std::min(static_cast<std::size_t>(bin), counts.size() - 1));
            }
            EXPECT_EQ(histogram.counts, counts);
        }
    }
}

TEST(FormatsTest, unknownFormatIsMeasuredAsBytes)
{
    const ByteVector bytes = {1, 2, 3, 4};
    const RawImage picture{bytes.data(), bytes.size(), 4, 1, 0, 0x81080123};
    const Measurements result = measure(picture, {true, std::nullopt, true, std::nullopt});
    ASSERT_EQ(result.statistics.size(), 1U);
    EXPECT_EQ(result.statistics[0].component, MeasuredComponent::Grey);
    EXPECT_EQ(result.statistics[0].maximum, 4);
    EXPECT_EQ(result.histogram->components[0].counts.size(), 256U);
}
