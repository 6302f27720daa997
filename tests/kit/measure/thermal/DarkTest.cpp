#include "tests/kit/measure/thermal/DarkScene.h"
#include "tools/kit/measure/thermal/DarkSeries.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr std::uint32_t mono16 = 0x01100007;

Sentence measure(DarkScene &scene, const RenderSettings &settings, DarkLevel &level)
{
    const std::vector<std::uint8_t> bytes = scene.render(settings);
    RawImage picture;
    picture.data = bytes.data();
    picture.size = bytes.size();
    picture.width = static_cast<std::uint32_t>(settings.width);
    picture.height = static_cast<std::uint32_t>(settings.height);
    picture.pixelFormat = settings.pixelFormat;
    DarkMeter meter;
    return meter.measure(picture, level);
}

TEST(DarkMeterTest, refusesPicturesThatAreNotDark)
{
    DarkScene scene;
    RenderSettings settings = scene.darkPicture(mono16);
    DarkLevel level;
    EXPECT_TRUE(measure(scene, settings, level).isEmpty());
    settings.blackLevel = 0;
    EXPECT_EQ(toEnglish(measure(scene, settings, level)).find("The picture is not dark"), std::string::npos);
    EXPECT_FALSE(measure(scene, settings, level).isEmpty());
    settings.blackLevel = 64;
    settings.exposureTime = 5000;
    for (const SceneTarget target : {SceneTarget::Chart, SceneTarget::FlatField}) {
        settings.target = target;
        EXPECT_STREQ(measure(scene, settings, level).text,
            "The picture is not dark. Put the cap on the lens, or cover the lens completely.");
    }
}

TEST(DarkMeterTest, measuresTheLevelInEveryFormat)
{
    struct Case
    {
        std::uint32_t format;
        bool isColor;
        double maximum;
    };
    constexpr Case cases[] = {{0x01080001, false, 255}, {mono16, false, 65535}, {0x010C0006, false, 4095},
        {0x01080009, true, 255}, {0x01100011, true, 4095}, {0x02180014, true, 255}};
    for (const Case &format : cases) {
        DarkScene scene(format.isColor);
        RenderSettings settings = scene.darkPicture(format.format);
        settings.blackLevel = 250;
        DarkLevel level;
        ASSERT_TRUE(measure(scene, settings, level).isEmpty()) << format.format;
        EXPECT_NEAR(level.mean / format.maximum, 251.0 / 4095, 0.002) << format.format;
        EXPECT_EQ(DarkMeter::hint(level).isEmpty(), format.maximum > 255) << format.format;
    }
    DarkLevel level;
    RawImage unknown;
    unknown.pixelFormat = 0x80000001;
    EXPECT_FALSE(DarkMeter().measure(unknown, level).isEmpty());
}

TEST(DarkSeriesTest, findsTheDoublingTemperatureOfTheSensor)
{
    // The dark current of the sensor doubles every 8 K.
    DarkScene scene;
    RenderSettings settings = scene.darkPicture(mono16);
    DarkSeries series;
    for (int second = 0; second < 4000; second += second < 200 ? 2 : 20) {
        settings.temperature = 51 - 19 * std::exp(-second / 1000.0);
        settings.frameNumber = static_cast<std::uint64_t>(second);
        DarkLevel level;
        ASSERT_TRUE(measure(scene, settings, level).isEmpty());
        series.add(second, settings.temperature, level);
        EXPECT_EQ(series.noise().has_value(), second >= 18);
    }
    const auto doubling = series.doubling();
    ASSERT_TRUE(doubling);
    EXPECT_NEAR(doubling->kelvin, 8, 0.3);
    EXPECT_LT(std::abs(doubling->kelvin - 8), 3 * doubling->error);
    EXPECT_NEAR(doubling->lowest, 32, 0.1);
    EXPECT_NEAR(doubling->highest, 51, 0.5);

    // The true dark level has left the first one by more than the noise at the marked moment.
    ASSERT_TRUE(series.followedAt());
    const auto truth = [](double second) {
        const double electrons = 2 * std::exp2((51 - 19 * std::exp(-second / 1000.0) - 25) / 8);
        return electrons / 10000 * (65535 - 64 * 16);
    };
    EXPECT_GT(truth(*series.followedAt()) - truth(9), *series.noise());
    EXPECT_LT(truth(*series.followedAt()) - truth(9), 8 * *series.noise());
}

TEST(DarkSeriesTest, staysSilentWithoutDarkCurrent)
{
    std::mt19937 random(7);
    std::normal_distribution<double> noise;
    for (int run = 0; run < 20; ++run) {
        DarkSeries series;
        for (int second = 0; second < 300; ++second)
            series.add(second, 32 + second * 0.06, {64 + 0.01 * noise(random), 2, 0.007, 0});
        EXPECT_FALSE(series.doubling());
        EXPECT_FALSE(series.followedAt() && *series.followedAt() < 20);
    }
}

TEST(DarkSeriesTest, followsOnlyTheTemperature)
{
    // The level leaves the first ones at second 20: alone, against the temperature, and with it.
    const struct
    {
        double celsius;
        double level;
        bool isFollowing;
    } cases[] = {{40.4, 66, false}, {39, 66, false}, {41, 66, true}, {41, 62, false}, {39, 62, true}};
    for (const auto &after : cases) {
        DarkSeries series;
        for (int second = 0; second < 30; ++second)
            series.add(
                second, second < 20 ? 40 : after.celsius, {second < 20 ? 64 : after.level, 2, 0.01, 0});
        EXPECT_EQ(series.followedAt(), after.isFollowing ? std::optional(20.0) : std::nullopt)
            << after.celsius << ' ' << after.level;
    }
}

TEST(DarkSeriesTest, needsAChangeOfTheTemperature)
{
    DarkSeries series;
    for (int second = 0; second < 300; ++second) {
        const double celsius = 50 + second * 0.008;
        series.add(second, celsius, {64 + std::exp2((celsius - 40) / 8), 2, 0.001, 0});
    }
    EXPECT_FALSE(series.doubling());
    series.clear();
    EXPECT_TRUE(series.levels().isEmpty());
    EXPECT_FALSE(series.noise());
}

} // namespace
