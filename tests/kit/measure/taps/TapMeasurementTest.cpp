#include "tests/kit/measure/taps/SimulatedTaps.h"
#include "tools/kit/measure/taps/TapBalancing.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

/// Measures without a camera that could be changed.
class TapMeasuring : public testing::Test
{
protected:
    TapPicture take(SimulatedTaps &taps)
    {
        const MeasureProgress progress = [](std::size_t, std::size_t) { return true; };
        TapPicture picture;
        EXPECT_EQ(toEnglish(takeTapPicture({taps, taps, progress}, options, picture)), "");
        return picture;
    }

    std::string problemOf(SimulatedTaps &taps, TapSetting setting = TapSetting::Gain)
    {
        const MeasureProgress progress = [](std::size_t, std::size_t) { return true; };
        return toEnglish(measureTaps({taps, taps, progress}, options, setting, measurement));
    }

    TapOptions options;
    TapMeasurement measurement;
};

} // namespace

TEST_F(TapMeasuring, meanAndNoiseAreThoseOfTheSensor)
{
    SensorModel model = sensorWithTaps(2, 0.05);
    model.shading = 0;
    SimulatedTaps taps(model);
    const TapPicture picture = take(taps);
    const SensorFlaws flaws(model);
    const double unitsPerElectron = 4095 / model.fullWell;
    const double electrons = (picture.taps[0].mean - taps.settings.blackLevel) / unitsPerElectron;
    for (std::size_t tap = 0; tap < 2; ++tap) {
        const double gain = unitsPerElectron * flaws.tapGain(static_cast<int>(tap));
        const double offset = taps.settings.blackLevel + flaws.tapOffset(static_cast<int>(tap));
        EXPECT_NEAR(picture.taps[tap].mean, gain * electrons + offset, 0.002 * gain * electrons);
        const double noise = gain * std::sqrt(electrons + model.readNoise * model.readNoise);
        EXPECT_NEAR(picture.taps[tap].noise, noise, 0.05 * noise);
    }
    EXPECT_LT(picture.moved, 0.005);
}

TEST_F(TapMeasuring, stepsAreTheTruthDespiteShadingAndDefects)
{
    for (const int count : {2, 4}) {
        SensorModel model = sensorWithTaps(count, 0.06);
        model.shading = 0.4;
        SimulatedTaps taps(model);
        const SensorFlaws flaws(model);
        options.darkLevel = taps.settings.blackLevel;
        for (int tap = 0; tap < count; ++tap) { // Only the gains differ.
            taps.set("BlackLevelSelector", std::string("Tap" + std::to_string(tap + 1)));
            taps.set("BlackLevel", 100 - flaws.tapOffset(tap));
        }
        options.darkLevel += 100;
        options.reference = TapReference::FirstTap;
        EXPECT_EQ(problemOf(taps), "");
        for (int tap = 0; tap < count; ++tap)
            EXPECT_NEAR(
                measurement.taps[static_cast<std::size_t>(tap)].deviation, flaws.tapGain(tap) - 1, 0.001)
                << "tap " << tap;
        EXPECT_EQ(measurement.steps.size(), static_cast<std::size_t>(count - 1));
        for (const TapStep &step : measurement.steps) {
            const double truth
                = flaws.tapGain(static_cast<int>(step.second)) / flaws.tapGain(static_cast<int>(step.first))
                - 1;
            EXPECT_NEAR(measurement.stepOf(step), truth, 5 * measurement.errorOf(step) + 2e-4);
        }
    }
}

TEST_F(TapMeasuring, darkStepsAreThoseOfTheBlackLevels)
{
    SimulatedTaps taps(sensorWithTaps());
    const SensorFlaws flaws(sensorWithTaps());
    taps.settings.target = SceneTarget::LensCap;
    options.reference = TapReference::FirstTap;
    EXPECT_EQ(problemOf(taps, TapSetting::BlackLevel), "");
    for (int tap = 0; tap < 4; ++tap)
        EXPECT_NEAR(measurement.taps[static_cast<std::size_t>(tap)].deviation, flaws.tapOffset(tap), 0.3);
}

TEST_F(TapMeasuring, layoutsOfEveryKindAreMeasured)
{
    const struct
    {
        TapLayout layout;
        bool isBayer;
    } rows[] = {{{2, 1, 2, 1}, false}, {{1, 2, 1, 1}, false}, {{2, 2, 1, 2}, false}, {{1, 4, 2, 1}, false},
        {{3, 1, 2, 1}, true}};
    for (const auto &row : rows) {
        constexpr std::uint32_t width = 480;
        constexpr std::uint32_t height = 320;
        TapPicture picture;
        picture.width = width;
        picture.height = height;
        picture.isBayer = row.isBayer;
        picture.maxValue = 4095;
        picture.map = TapMap(row.layout, {}, width, height);
        picture.taps.resize(row.layout.tapCount());
        const auto gainOf = [](unsigned tap) { return 1 + 0.02 * std::sin(5.0 * tap); };
        for (std::size_t y = 0; y < height; ++y) {
            for (std::size_t x = 0; x < width; ++x) {
                const double color = row.isBayer && x % 2 == y % 2 ? 0.5 : 1;
                const double light
                    = 2000 * color * std::exp(-1e-6 * double(x * x + y * y) - 0.0005 * double(x));
                picture.mean.push_back(static_cast<float>(100 + light * gainOf(picture.map.tapAt(x, y))));
            }
        }
        const TapMeasurement result = measureBright(picture, 100, TapReference::FirstTap);
        for (unsigned tap = 0; tap < row.layout.tapCount(); ++tap)
            EXPECT_NEAR(result.taps[tap].deviation, gainOf(tap) / gainOf(0) - 1, 2e-4)
                << row.layout.zonesX << row.layout.tapsX << row.layout.zonesY << row.layout.tapsY << " "
                << tap;
    }
}

TEST_F(TapMeasuring, wrongReferencesAreNamed)
{
    SimulatedTaps taps(sensorWithTaps());
    taps.settings.target = SceneTarget::LensCap;
    EXPECT_NE(problemOf(taps).find("too dark"), std::string::npos);
    taps.settings.blackLevel = 0;
    EXPECT_NE(problemOf(taps, TapSetting::BlackLevel).find("cut off"), std::string::npos);
    taps.settings.blackLevel = 64;
    taps.settings.target = SceneTarget::FlatField;
    EXPECT_NE(problemOf(taps, TapSetting::BlackLevel).find("not dark"), std::string::npos);
    taps.settings.exposureTime = 100000;
    EXPECT_NE(problemOf(taps).find("overexposed"), std::string::npos);
    taps.settings.exposureTime = 5000;
    taps.settings.target = SceneTarget::Chart;
    EXPECT_NE(problemOf(taps).find("scene moves"), std::string::npos) << problemOf(taps);
    taps.settings.target = SceneTarget::FlatField;
    taps.add("Gamma", 0.5);
    EXPECT_NE(problemOf(taps).find("Gamma"), std::string::npos);
    taps.set("Gamma", 1.0);
    taps.settings.pixelFormat = 0x02180014; // RGB8
    EXPECT_NE(problemOf(taps).find("pixel format"), std::string::npos);
}
