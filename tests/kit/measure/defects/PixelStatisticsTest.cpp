#include "sdk/simulator/SceneNoise.h"
#include "tests/kit/measure/defects/PictureAdder.h"
#include "tools/kit/measure/defects/NeighbourMedian.h"
#include "tools/kit/measure/defects/RobustSpread.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t mono16Code = 0x01100007;

/// Returns pictures of words with values around 40000.
std::vector<std::vector<std::uint16_t>> randomPictures(std::size_t count, std::size_t pixels)
{
    std::vector<std::vector<std::uint16_t>> pictures(count, std::vector<std::uint16_t>(pixels));
    std::uint64_t key = 0;
    for (auto &picture : pictures)
        for (std::uint16_t &value : picture)
            value = static_cast<std::uint16_t>(40000 + 1000 * uniformRandom(++key));
    return pictures;
}

void add(PixelStatistics &statistics, const std::vector<std::uint16_t> &values, std::uint32_t width)
{
    RawImage picture;
    picture.data = reinterpret_cast<const std::uint8_t *>(values.data());
    picture.size = values.size() * 2;
    picture.width = width;
    picture.height = static_cast<std::uint32_t>(values.size()) / width;
    picture.pixelFormat = mono16Code;
    addPicture(statistics, picture);
}

std::pair<double, double> meanAndSquares(const std::vector<double> &values)
{
    double mean = 0;
    for (const double value : values)
        mean += value / static_cast<double>(values.size());
    double squares = 0;
    for (const double value : values)
        squares += (value - mean) * (value - mean);
    return {mean, squares};
}

StatisticsLayout layoutOf(std::uint32_t width, std::uint32_t height)
{
    StatisticsLayout layout;
    layout.width = width;
    layout.height = height;
    layout.maxValue = 65535;
    return layout;
}

} // namespace

TEST(PixelStatistics, EqualsAPlainComputation)
{
    constexpr std::uint32_t width = 70; // Not a multiple of the blocks.
    constexpr std::uint32_t height = 45;
    constexpr std::size_t images = 50;
    const auto pictures = randomPictures(images, width * height);
    for (const bool isLineScan : {false, true}) {
        PixelStatistics statistics(layoutOf(width, isLineScan ? 1 : height));
        for (std::size_t i = 0; i < images; ++i) {
            add(statistics, pictures[i], width);
            add(statistics, pictures[i / 3], width); // Is not counted.
        }
        EXPECT_EQ(statistics.images(), images);
        EXPECT_EQ(statistics.samples(), isLineScan ? images * height : images);
        for (std::uint32_t y = 0; y < (isLineScan ? 1 : height); ++y) {
            for (std::uint32_t x = 0; x < width; ++x) {
                std::vector<double> values;
                for (const auto &picture : pictures)
                    for (std::uint32_t line = y; line < (isLineScan ? height : y + 1); ++line)
                        values.push_back(picture[line * width + x]);
                const auto [mean, squares] = meanAndSquares(values);
                ASSERT_NEAR(statistics.means(y)[x], mean, 0.3);
                ASSERT_NEAR(statistics.squares(y)[x] / squares, 1, 1e-3);
            }
        }
    }
}

TEST(PixelStatistics, KeepsTheMeanOfEachBlockAndImage)
{
    constexpr std::uint32_t width = 64;
    std::vector<std::uint16_t> picture(width * width, 100);
    for (std::size_t x = 2; x < 4; ++x)
        for (std::size_t y = 4; y < 6; ++y)
            picture[y * width + x] = 300; // The second block of the third row.
    PixelStatistics statistics(layoutOf(width, width));
    add(statistics, picture, width);
    ASSERT_EQ(statistics.blockColumns(), 32U);
    std::vector<float> expected(32 * 32, 100);
    expected[2 * 32 + 1] = 300;
    EXPECT_EQ(statistics.blockMeans(), std::vector<std::vector<float>>{expected});
}

TEST(NeighbourMedian, EqualsAPlainComputation)
{
    struct Case
    {
        std::uint32_t width;
        std::uint32_t height;
        unsigned step;
    };
    for (const Case &test : {Case{67, 9, 1}, Case{66, 10, 2}, Case{100, 1, 1}, Case{101, 1, 2}}) {
        std::vector<float> values(test.width * test.height);
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = static_cast<float>(uniformRandom(i));
        NeighbourMedian neighbours(test.width, test.height, test.step);
        std::vector<float> medians(test.width);
        const int reachX = test.height == 1 ? 12 : 2;
        const int reachY = test.height == 1 ? 0 : 2;
        const auto inside = [](int position, int size) {
            const int positive = std::abs(position);
            return positive < size ? positive : 2 * (size - 1) - positive;
        };
        for (std::uint32_t y = 0; y < test.height; ++y) {
            neighbours.computeLine(values.data(), y, medians.data());
            for (std::uint32_t x = 0; x < test.width; ++x) {
                std::vector<float> around;
                for (int down = -reachY; down <= reachY; ++down)
                    for (int right = -reachX; right <= reachX; ++right)
                        around.push_back(values[static_cast<std::size_t>(
                            inside(static_cast<int>(y) + down * static_cast<int>(test.step),
                                static_cast<int>(test.height))
                                * static_cast<int>(test.width)
                            + inside(static_cast<int>(x) + right * static_cast<int>(test.step),
                                static_cast<int>(test.width)))]);
                std::sort(around.begin(), around.end());
                ASSERT_EQ(medians[x], around[12]) << x << ", " << y << " of " << test.width;
            }
        }
    }
}

TEST(RobustSpread, IgnoresOutliers)
{
    const SceneNoise noise(7, 50, 3, 20000);
    std::vector<float> numbers(noise.line(0), noise.line(0) + 20000);
    for (std::size_t i = 0; i < numbers.size(); i += 10)
        numbers[i] = i % 20 == 0 ? 1e6F : -1e6F;
    const RobustSpread spread = robustSpread(numbers);
    EXPECT_NEAR(spread.median, 50, 0.1);
    EXPECT_NEAR(spread.deviation, 3, 0.1);
}
