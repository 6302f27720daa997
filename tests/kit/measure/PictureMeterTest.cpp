#include "tools/kit/measure/PictureMeter.h"
#include "tests/kit/measure/TestBytes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr MeasureRequest everything{true, std::nullopt, true, std::nullopt};

MeasureRequest inRegion(const Region &region)
{
    return {true, region, true, std::nullopt};
}

LineProfile profileOf(const RawImage &picture, const MeasuredLine &line)
{
    return measure(picture, {false, std::nullopt, false, line}).profile.value();
}

const ComponentStatistics &find(const Measurements &measurements, MeasuredComponent component)
{
    for (const ComponentStatistics &statistics : measurements.statistics)
        if (statistics.component == component)
            return statistics;
    ADD_FAILURE() << "The component was not measured.";
    static const ComponentStatistics none;
    return none;
}

void expectStatistics(const ComponentStatistics &statistics, const ComponentStatistics &expected)
{
    EXPECT_EQ(statistics.component, expected.component);
    EXPECT_EQ(statistics.pixels, expected.pixels);
    EXPECT_DOUBLE_EQ(statistics.minimum, expected.minimum);
    EXPECT_DOUBLE_EQ(statistics.maximum, expected.maximum);
    EXPECT_DOUBLE_EQ(statistics.mean, expected.mean);
    EXPECT_NEAR(statistics.deviation, expected.deviation, 1e-9 * std::abs(expected.deviation));
}

} // namespace

TEST(PictureMeterTest, measuresGreyPicture)
{
    const ByteVector bytes = {0, 0, 10, 20, 255, 255, 255, 30};
    const Measurements result = measure(pictureOf(bytes, 4, 2, "Mono8"), everything);
    EXPECT_EQ(result.width, 4U);
    EXPECT_EQ(result.height, 2U);
    ASSERT_EQ(result.statistics.size(), 1U);
    // The sum is 825; the squares add up to 196475.
    expectStatistics(result.statistics[0],
        {MeasuredComponent::Grey, 8, 0, 255, 103.125, std::sqrt((196475 - 825 * 103.125) / 7)});
    const Histogram &histogram = result.histogram.value();
    EXPECT_EQ(histogram.lowest, 0);
    EXPECT_EQ(histogram.highest, 255);
    EXPECT_EQ(histogram.binWidth, 1);
    const ComponentHistogram &grey = histogram.components.at(0);
    ASSERT_EQ(grey.counts.size(), 256U);
    EXPECT_EQ(grey.counts[0], 2U);
    EXPECT_EQ(grey.counts[10], 1U);
    EXPECT_EQ(grey.counts[255], 3U);
    EXPECT_EQ(grey.pixels, 8U);
    EXPECT_DOUBLE_EQ(grey.darkShare, 0.25);
    EXPECT_DOUBLE_EQ(grey.brightShare, 0.375);
}

TEST(PictureMeterTest, measuresOnlyTheRegionCutToThePicture)
{
    ByteVector bytes(100);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i);
    const RawImage picture = pictureOf(bytes, 10, 10, "Mono8");
    struct Row
    {
        Region region;
        std::uint64_t pixels;
        double minimum;
        double maximum;
    };
    for (const Row &row :
        {Row{{2, 3, 4, 2}, 8, 32, 45}, Row{{9, 9, 1, 1}, 1, 99, 99}, Row{{8, 8, 50, 50}, 4, 88, 99}}) {
        const Measurements result = measure(picture, inRegion(row.region));
        const ComponentStatistics &grey = find(result, MeasuredComponent::Grey);
        EXPECT_EQ(grey.pixels, row.pixels);
        EXPECT_EQ(grey.minimum, row.minimum);
        EXPECT_EQ(grey.maximum, row.maximum);
        EXPECT_EQ(result.histogram->components.at(0).pixels, row.pixels);
    }
    EXPECT_EQ(find(measure(picture, inRegion({9, 9, 1, 1})), MeasuredComponent::Grey).deviation, 0);
    EXPECT_TRUE(measure(picture, inRegion({10, 0, 5, 5})).statistics.empty());
}

TEST(PictureMeterTest, measuresBayerPictureByColor)
{
    // Lines of R G and G B; the region begins with a blue pixel.
    const ByteVector bytes = {10, 20, 11, 21, 22, 30, 23, 31, 12, 24, 13, 25, 26, 32, 27, 33};
    const RawImage picture = pictureOf(bytes, 4, 4, "BayerRG8");
    const Measurements whole = measure(picture, everything);
    expectStatistics(
        find(whole, MeasuredComponent::Red), {MeasuredComponent::Red, 4, 10, 13, 11.5, std::sqrt(5.0 / 3)});
    expectStatistics(
        find(whole, MeasuredComponent::Green), {MeasuredComponent::Green, 8, 20, 27, 23.5, std::sqrt(6.0)});
    expectStatistics(
        find(whole, MeasuredComponent::Blue), {MeasuredComponent::Blue, 4, 30, 33, 31.5, std::sqrt(5.0 / 3)});
    const Measurements part = measure(picture, inRegion({1, 1, 1, 3}));
    EXPECT_EQ(part.statistics.size(), 2U); // There is no red.
    expectStatistics(
        find(part, MeasuredComponent::Blue), {MeasuredComponent::Blue, 2, 30, 32, 31, std::sqrt(2.0)});
    expectStatistics(find(part, MeasuredComponent::Green), {MeasuredComponent::Green, 1, 24, 24, 24, 0});
}

TEST(PictureMeterTest, histogramOfSixteenBitsHasExactClipShares)
{
    // The values next to the ends are in the same bins, but are not clipped.
    const ByteVector bytes = bytesOf<std::uint16_t>({0, 1, 15, 16, 65535, 65534, 65520, 65519});
    const Histogram histogram = measure(pictureOf(bytes, 8, 1, "Mono16"), everything).histogram.value();
    const ComponentHistogram &grey = histogram.components.at(0);
    ASSERT_EQ(grey.counts.size(), 4096U);
    EXPECT_EQ(histogram.binWidth, 16);
    EXPECT_EQ(histogram.highest, 65535);
    EXPECT_EQ(grey.counts.front(), 3U);
    EXPECT_EQ(grey.counts.back(), 3U);
    EXPECT_DOUBLE_EQ(grey.darkShare, 0.125);
    EXPECT_DOUBLE_EQ(grey.brightShare, 0.125);
}

TEST(PictureMeterTest, measuresSignedNumbers)
{
    const ByteVector bytes = bytesOf<std::int16_t>({-32768, -1, 0, 32767});
    const Measurements result = measure(pictureOf(bytes, 4, 1, "Data16s"), everything);
    const ComponentStatistics &grey = find(result, MeasuredComponent::Grey);
    EXPECT_EQ(grey.minimum, -32768);
    EXPECT_EQ(grey.maximum, 32767);
    EXPECT_DOUBLE_EQ(grey.mean, -0.5);
    EXPECT_EQ(result.histogram->lowest, -32768);
    EXPECT_EQ(result.histogram->components[0].counts[2048], 1U);
    EXPECT_DOUBLE_EQ(result.histogram->components[0].darkShare, 0.25);
}

TEST(PictureMeterTest, highestValueOfFiveBitsIsClipped)
{
    // Red 31, green 63, blue 0; then red 30, green 31, blue 31.
    const ByteVector bytes = bytesOf<std::uint16_t>({31 | 63 << 5, 30 | 31 << 5 | 31 << 11});
    const Histogram histogram = measure(pictureOf(bytes, 2, 1, "RGB565p"), everything).histogram.value();
    for (const ComponentHistogram &component : histogram.components)
        EXPECT_DOUBLE_EQ(component.brightShare, 0.5);
}

TEST(PictureMeterTest, lumaIsClippedAtTheEndsOfItsRange)
{
    // Luma 0, 16, 235 and 255. All values of chroma are 128.
    const ByteVector bytes = {0, 128, 16, 128, 235, 128, 255, 128};
    const auto sharesIn = [&](const char *format) {
        const Histogram histogram = measure(pictureOf(bytes, 4, 1, format), everything).histogram.value();
        const ComponentHistogram &luma = histogram.components.at(0);
        EXPECT_EQ(histogram.components.at(1).darkShare, 0);
        return std::pair(luma.darkShare, luma.brightShare);
    };
    EXPECT_EQ(sharesIn("YCbCr601_422_8"), std::pair(0.5, 0.5));
    EXPECT_EQ(sharesIn("YUV422_8"), std::pair(0.25, 0.25)); // Its range is 0 to 255.
}

TEST(PictureMeterTest, deviationOfLargeNumbersIsExact)
{
    const ByteVector bytes = bytesOf<double>({1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16});
    expectStatistics(find(measure(pictureOf(bytes, 4, 1, "Data64f"), everything), MeasuredComponent::Grey),
        {MeasuredComponent::Grey, 4, 1e9 + 4, 1e9 + 16, 1e9 + 10, std::sqrt(30.0)});
}

TEST(PictureMeterTest, leavesOutWhatIsNoNumber)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const ByteVector bytes = bytesOf<float>({1, nan, -3, infinity, 5, -infinity});
    const RawImage picture = pictureOf(bytes, 3, 2, "Coord3D_C32f");
    const Measurements result = measure(picture, everything);
    expectStatistics(find(result, MeasuredComponent::Grey), {MeasuredComponent::Grey, 3, -3, 5, 1, 4});
    EXPECT_EQ(result.histogram->lowest, -3);
    EXPECT_EQ(result.histogram->highest, 5);
    EXPECT_EQ(result.histogram->components[0].counts.front(), 1U);
    EXPECT_EQ(result.histogram->components[0].counts.back(), 1U);
    EXPECT_EQ(result.histogram->components[0].brightShare, 0);
    const LineProfile::Curve curve = profileOf(picture, {0, 0, 2, 0}).curves.at(0);
    EXPECT_EQ(curve.positions, (std::vector<double>{0, 2}));
    EXPECT_EQ(curve.values, (std::vector<double>{1, -3}));
}

TEST(PictureMeterTest, leavesOutLinesThatAreMissing)
{
    const ByteVector bytes(4 * 3 + 1, 7); // The fourth line has one pixel of four.
    RawImage picture = pictureOf(bytes, 4, 100, "Mono8");
    const ComponentStatistics grey = find(measure(picture, everything), MeasuredComponent::Grey);
    EXPECT_EQ(grey.pixels, 12U);
    EXPECT_EQ(grey.minimum, 7);
    EXPECT_EQ(profileOf(picture, {1, 0, 1, 99}).curves.at(0).values.size(), 3U);
    picture.size = 0;
    EXPECT_TRUE(measure(picture, everything).statistics.empty());
}

TEST(PictureMeterTest, samplesLines)
{
    ByteVector bytes(10 * 8);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i);
    const RawImage picture = pictureOf(bytes, 10, 8, "Mono8");
    struct Row
    {
        MeasuredLine line;
        std::vector<double> values;
    };
    const std::vector<Row> rows = {
        {{2, 1, 5, 1}, {12, 13, 14, 15}}, // Part of a row.
        {{5, 1, 2, 1}, {15, 14, 13, 12}}, // The same line in the other direction.
        {{3, 0, 3, 7}, {3, 13, 23, 33, 43, 53, 63, 73}}, // A column.
        {{3, 4, 4000000000, 4}, {43, 44, 45, 46, 47, 48, 49}}, // Cut to the picture.
        {{0, 0, 3, 4}, {0, 11, 21, 22, 32, 43}}, // Length 5: (0.6, 0.8), (1.2, 1.6), (1.8, 2.4), (2.4, 3.2).
        {{6, 6, 6, 6}, {66}}, // A point.
    };
    for (const Row &row : rows) {
        const LineProfile::Curve curve = profileOf(picture, row.line).curves.at(0);
        EXPECT_EQ(curve.positions.back(), static_cast<double>(row.values.size() - 1));
        EXPECT_EQ(curve.values, row.values);
    }
}

TEST(PictureMeterTest, profileOfBayerPictureHasCurvesWithTheirOwnPositions)
{
    const ByteVector bytes = {1, 2, 3, 4, 5, 6, 7, 8};
    const LineProfile profile = profileOf(pictureOf(bytes, 4, 2, "BayerGB8"), {0, 1, 3, 1});
    ASSERT_EQ(profile.curves.size(), 2U);
    EXPECT_EQ(profile.curves[0].component, MeasuredComponent::Red);
    EXPECT_EQ(profile.curves[0].positions, (std::vector<double>{0, 2}));
    EXPECT_EQ(profile.curves[0].values, (std::vector<double>{5, 7}));
    EXPECT_EQ(profile.curves[1].component, MeasuredComponent::Green);
    EXPECT_EQ(profile.curves[1].positions, (std::vector<double>{1, 3}));
    EXPECT_EQ(profile.curves[1].values, (std::vector<double>{6, 8}));
}

TEST(PictureMeterTest, measuresOnlyWhatIsRequested)
{
    const ByteVector bytes(16, 1);
    const Measurements result = measure(pictureOf(bytes, 4, 4, "Mono8"), {});
    EXPECT_FALSE(result.histogram);
    EXPECT_TRUE(result.statistics.empty());
    EXPECT_FALSE(result.profile);
}
