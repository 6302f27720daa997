#include "tests/simulator/RenderedPicture.h"

#include <gtest/gtest.h>

#include <cmath>

// Exposure, gain, black level, gamma and noise. The numbers of the noise come from fixed seeds.

namespace {
double darkValue(const RenderSettings &settings)
{
    return settings.blackLevel * mono16PerUnit;
}
} // namespace

TEST(SceneBrightness, IsLinearInExposureUntilSaturation)
{
    const SensorModel model = flawlessSensor();
    RenderSettings settings = flatField(model);
    settings.exposureTime = 1000;
    const double perMillisecond = render(model, settings).mean() - darkValue(settings);
    for (const double factor : {0.1, 2.0, 5.0, 9.0}) {
        settings.exposureTime = 1000 * factor;
        EXPECT_NEAR(render(model, settings).mean() - darkValue(settings), perMillisecond * factor,
            perMillisecond * factor * 0.003);
    }
    settings.exposureTime = 100000;
    EXPECT_EQ(render(model, settings).mean(), 65535);
}

TEST(SceneBrightness, GrowsWithGainAndTapGain)
{
    const SensorModel model = flawlessSensor();
    RenderSettings settings = flatField(model);
    settings.exposureTime = 1000;
    const double once = render(model, settings).mean() - darkValue(settings);
    settings.gain = 3;
    settings.tapGain[0] = 1.5;
    EXPECT_NEAR(render(model, settings).mean() - darkValue(settings), 4.5 * once, once * 0.02);
}

TEST(SceneBrightness, OfDarkPictureIsTheBlackLevel)
{
    const SensorModel model = noiselessSensor();
    RenderSettings settings = darkPicture(model);
    settings.blackLevel = 100;
    settings.tapBlackLevel[0] = 11;
    EXPECT_EQ(render(model, settings).mean(), 111 * mono16PerUnit);
    settings.pixelFormat = mono8;
    EXPECT_EQ(render(model, settings).mean(), 7); // 111 / 16, rounded.
}

TEST(SceneBrightness, FollowsGamma)
{
    const SensorModel model = noiselessSensor();
    RenderSettings settings = darkPicture(model);
    settings.pixelFormat = mono8;
    settings.blackLevel = 64 * 16;
    settings.gamma = 0.5;
    EXPECT_EQ(render(model, settings).mean(), 128); // 255 * sqrt(64 / 255) = 127.7.
}

TEST(SceneNoiseInPictures, HasTheVarianceOfReadNoiseAndElectrons)
{
    const SensorModel model = flawlessSensor();
    for (const double gain : {1.0, 4.0}) {
        for (const double exposure : {0.0, 100.0, 1000.0, 2000.0}) {
            RenderSettings settings = flatField(model);
            settings.exposureTime = exposure;
            settings.gain = gain;
            const RenderedPicture picture = render(model, settings);
            const double perElectron = mono16PerElectron(model) * gain;
            const double electrons = (picture.mean() - darkValue(settings)) / perElectron;
            const double expected
                = (model.readNoise * model.readNoise + electrons) * perElectron * perElectron;
            EXPECT_NEAR(picture.variance(), expected, expected * 0.03) << exposure << " µs, gain " << gain;
        }
    }
}

TEST(SceneNoiseInPictures, DiffersFromPictureToPicture)
{
    const SensorModel model = flawlessSensor();
    SceneRenderer renderer(model);
    RenderSettings settings = darkPicture(model);
    const RenderedPicture first = render(renderer, settings);
    settings.frameNumber = 1;
    RenderedPicture difference = render(renderer, settings);
    for (std::size_t i = 0; i < first.values.size(); ++i)
        difference.values[i] -= first.values[i];
    EXPECT_NEAR(difference.variance(), 2 * first.variance(), first.variance() * 0.06);
}

TEST(SceneNoiseInPictures, GrowsWithDarkCurrent)
{
    SensorModel model = flawlessSensor();
    model.darkCurrent = 100;
    RenderSettings settings = darkPicture(model);
    settings.exposureTime = 1e6;
    settings.temperature = 41; // Four times as much as at 25 °C.
    const RenderedPicture picture = render(model, settings);
    const double perElectron = mono16PerElectron(model);
    EXPECT_NEAR(picture.mean() - darkValue(settings), 400 * perElectron, 4 * perElectron);
    const double expected = (model.readNoise * model.readNoise + 400) * perElectron * perElectron;
    EXPECT_NEAR(picture.variance(), expected, expected * 0.03);
}
