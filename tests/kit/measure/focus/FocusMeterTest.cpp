#include "tests/kit/measure/focus/FocusPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {
struct Light
{
    double exposureTime;
    double gain;
};
constexpr Light lights[] = {{8000, 2}, {2000, 1}, {2000, 4}, {1000, 8}, {1000, 1}};

/// Returns the largest relative change of the sharpness by exposure and gain.
double largestChange(FocusPictures &pictures)
{
    const double usual = pictures.measure().sharpness;
    double change = 0;
    for (const Light &light : lights) {
        const RenderSettings before = pictures.settings;
        pictures.settings.exposureTime *= light.exposureTime / 8000;
        pictures.settings.gain = light.gain;
        if (light.exposureTime * light.gain <= 8000)
            change = std::max(change, std::abs(pictures.measure().sharpness / usual - 1));
        pictures.settings = before;
    }
    return change;
}

bool hasState(const FocusMeasurement &picture, RegionFocus::State state)
{
    return std::all_of(picture.regions.begin(), picture.regions.end(),
        [state](const RegionFocus &region) { return region.state == state; });
}
} // namespace

TEST(FocusMeter, NeitherNoiseNorExposureChangeTheSharpness)
{
    const struct
    {
        SensorModel model;
        std::uint32_t pixelFormat;
        double position;
    } cases[] = {
        {FocusPictures::sensor(), focusMono8, 487},
        {FocusPictures::sensor(), focusMono12p, 487},
        {FocusPictures::sensor(), focusMono16, 487},
        {FocusPictures::sensor(), focusMono16, 527}, // Blurred, so that the noise is larger than the edges.
        {FocusPictures::colorSensor(), focusBayerRG8, 487},
        {FocusPictures::colorSensor(), focusBayerRG12, 527},
        {FocusPictures::colorSensor(), focusRgb8, 487},
        {FocusPictures::lineSensor(), focusMono8, 487},
    };
    for (const auto &[model, pixelFormat, position] : cases) {
        FocusPictures pictures(model, pixelFormat);
        pictures.settings.focusPosition = position;
        EXPECT_LE(largestChange(pictures), 0.05) << std::hex << pixelFormat << " at " << position;
    }
}

TEST(FocusMeter, EveryRegionKeepsItsSharpnessInNoise)
{
    FocusPictures pictures(FocusPictures::sensor());
    const FocusMeasurement usual = pictures.measure();
    pictures.settings.exposureTime = 2000;
    pictures.settings.gain = 4;
    const FocusMeasurement noisy = pictures.measure();
    EXPECT_GT(noisy.noise, 1.2 * usual.noise);
    for (std::size_t i = 0; i < usual.regions.size(); ++i)
        EXPECT_NEAR(
            noisy.regions[i].sharpness, usual.regions[i].sharpness, 0.05 * usual.regions[i].sharpness);
}

TEST(FocusMeter, SharpnessFallsWithTheDistanceFromTheBestPosition)
{
    FocusPictures pictures(FocusPictures::sensor());
    double above = pictures.measure().sharpness;
    for (const double distance : {1.0, 3.0, 10.0, 30.0, 100.0, 300.0}) {
        pictures.settings.focusPosition = 487 - distance;
        const double sharpness = pictures.measure().sharpness;
        pictures.settings.focusPosition = 487 + distance;
        EXPECT_NEAR(pictures.measure().sharpness, sharpness, 0.05 * sharpness);
        EXPECT_LT(sharpness, 0.97 * above) << distance;
        above = sharpness;
    }
}

TEST(FocusMeter, RegionsCoverThePicture)
{
    FocusPictures pictures(FocusPictures::sensor());
    pictures.options.grid = {7, 9};
    const FocusMeasurement measurement = pictures.measure();
    ASSERT_EQ(measurement.regions.size(), 63U);
    EXPECT_EQ(measurement.regions.front().area.x, 0U);
    const Region last = measurement.regions.back().area;
    EXPECT_EQ(last.x + last.width, 640U);
    EXPECT_EQ(last.y + last.height, 480U);
    for (const RegionFocus &region : measurement.regions) {
        EXPECT_GE(region.centerX, region.area.x - 8.0);
        EXPECT_LE(region.centerX, region.area.x + region.area.width + 8.0);
    }
}

TEST(FocusMeter, PicturesThatSayNothingAreRefused)
{
    FocusPictures pictures(FocusPictures::sensor());
    pictures.settings.target = SceneTarget::LensCap;
    EXPECT_EQ(pictures.problem().rfind("The picture is too dark.", 0), 0U);
    EXPECT_TRUE(hasState(pictures.measure(), RegionFocus::State::TooDark));
    pictures.settings.target = SceneTarget::FlatField;
    EXPECT_EQ(pictures.problem().rfind("The picture has no edges.", 0), 0U);
    EXPECT_TRUE(hasState(pictures.measure(), RegionFocus::State::NoEdges));
    pictures.settings.gain = 4;
    pictures.settings.exposureTime = 2000; // The picture is as bright, but has more noise.
    EXPECT_TRUE(hasState(pictures.measure(), RegionFocus::State::NoEdges));
    pictures.settings.target = SceneTarget::Chart;
    pictures.settings.exposureTime = 40000;
    EXPECT_NE(pictures.problem().find("% of the pixels are overexposed."), std::string::npos);
}

TEST(FocusMeter, RegionWithoutEdgesIsMarkedAndTheOthersAreNot)
{
    // The left half is grey, the right one has bars.
    constexpr std::uint32_t width = 320;
    constexpr std::uint32_t height = 240;
    std::vector<std::uint8_t> bytes(std::size_t{width} * height, 90);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        if (i % width >= width / 2 + 8)
            bytes[i] = static_cast<std::uint8_t>(i / 6 % 2 == 0 ? 60 : 140);
    FocusOptions options;
    options.grid = {4, 3};
    FocusMeasurement measurement;
    FocusMeter meter;
    ASSERT_TRUE(
        meter.measure({bytes.data(), bytes.size(), width, height, 0, focusMono8, false}, options, measurement)
            .isEmpty());
    for (std::size_t i = 0; i < measurement.regions.size(); ++i)
        EXPECT_EQ(measurement.regions[i].state,
            i % 4 < 2 ? RegionFocus::State::NoEdges : RegionFocus::State::Usable);
    EXPECT_TRUE(measurement.isUsable());
}

TEST(FocusMeter, PicturesThatCannotBeMeasuredAreNamed)
{
    const std::vector<std::uint8_t> bytes(64 * 64 * 4);
    FocusMeasurement measurement;
    FocusMeter meter;
    constexpr std::uint32_t coordinates = 0x011000B8; // Coord3D_C16
    EXPECT_EQ(
        toEnglish(meter.measure({bytes.data(), bytes.size(), 64, 64, 0, coordinates, false}, {}, measurement))
            .rfind("Pictures of this pixel format cannot be measured.", 0),
        0U);
    EXPECT_EQ(
        toEnglish(meter.measure({bytes.data(), bytes.size(), 64, 64, 0, focusMono8, false}, {}, measurement))
            .rfind("The picture is too small", 0),
        0U);
}
