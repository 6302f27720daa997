#include "tests/simulator/RenderedPicture.h"

#include <gtest/gtest.h>

#include <cmath>

// Compares pictures with the true flaws.

namespace {
using Kind = DefectPixel::Kind;

}

TEST(SensorFlawsInPictures, DefectsAreWhereTheTruthSays)
{
    SensorModel model = noiselessSensor();
    model.fullWell = 1e4; // Defects have a number of electrons.
    model.hotPixels = 1000;
    model.stuckPixels = 1000;
    model.blinkingPixels = 1000;
    model.stuckColumns = 2;
    SceneRenderer renderer(model);
    RenderSettings settings = darkPicture(model);
    settings.exposureTime = 20000;
    settings.temperature = 33; // Twice the dark current.
    settings.frameNumber = 5;
    const RenderedPicture picture = render(renderer, settings);

    RenderedPicture expected = picture;
    std::fill(expected.values.begin(), expected.values.end(), static_cast<int>(settings.blackLevel * 16));
    const auto &defects = renderer.flaws().defects();
    std::array<int, 4> kinds{};
    for (std::size_t i = 0; i < defects.size(); ++i) {
        const DefectPixel &defect = defects[i];
        ++kinds.at(static_cast<std::size_t>(defect.kind));
        double electrons = 0;
        if (defect.kind == Kind::Hot)
            electrons = defect.strength * 0.02 * 2;
        if (defect.kind == Kind::Blinking && renderer.flaws().isBlinkingOn(i, 5))
            electrons = defect.strength;
        double value = settings.blackLevel * 16 + electrons * mono16PerElectron(model);
        if (defect.kind == Kind::StuckBlack)
            value = 0;
        if (defect.kind == Kind::StuckWhite)
            value = 65535;
        expected.values.at(static_cast<std::size_t>(defect.y * model.width + defect.x))
            = static_cast<int>(std::min(65535.0, std::round(value)));
    }
    for (std::size_t i = 0; i < picture.values.size(); ++i)
        EXPECT_NEAR(picture.values[i], expected.values[i], 1) << "pixel " << i;
    EXPECT_GE(kinds[0], 49); // 1,000 per megapixel, and some neighbours.
    EXPECT_GE(kinds[1], 24 + 2 * model.height - 20); // Half of the stuck pixels, and the columns.
    EXPECT_GE(kinds[2], 20);
    EXPECT_GE(kinds[3], 40);
}

TEST(SensorFlawsInPictures, BlinkingPixelsAreBrightInHalfOfThePictures)
{
    SensorModel model = flawlessSensor();
    model.blinkingPixels = 100;
    const SensorFlaws flaws(model);
    ASSERT_FALSE(flaws.defects().empty());
    for (std::size_t i = 0; i < flaws.defects().size(); ++i) {
        int bright = 0;
        for (std::uint64_t frame = 0; frame < 1000; ++frame)
            bright += flaws.isBlinkingOn(i, frame) ? 1 : 0;
        EXPECT_NEAR(bright, 500, 80);
    }
}

TEST(SensorFlawsInPictures, ShadingDarkensTheCornersByTheShare)
{
    SensorModel model = noiselessSensor();
    model.shading = 0.4;
    SceneRenderer renderer(model);
    RenderSettings settings = flatField(model);
    settings.blackLevel = 0;
    const RenderedPicture picture = render(renderer, settings);
    const double brightest = picture.at(128, 96) / renderer.flaws().shading(128, 96);
    for (const auto &[x, y] : {std::pair(0, 0), {255, 0}, {0, 191}, {255, 191}, {200, 30}})
        EXPECT_NEAR(picture.at(x, y), brightest * renderer.flaws().shading(x, y), brightest * 0.0005);
    EXPECT_NEAR(
        renderer.flaws().shading(0, 0), 0.6, 0.06); // The brightest place is not exactly in the middle.
    EXPECT_GT(renderer.flaws().shading(128, 96), 0.99);
}

TEST(SensorFlawsInPictures, PhotoResponseScalesTheLight)
{
    SensorModel model = noiselessSensor();
    model.photoResponse = 0.02;
    SceneRenderer renderer(model);
    RenderSettings settings = flatField(model);
    settings.blackLevel = 0;
    const RenderedPicture picture = render(renderer, settings);
    const double mean = picture.mean();
    double squares = 0;
    for (int y = 0; y < model.height; ++y) {
        for (int x = 0; x < model.width; ++x) {
            const double response = renderer.flaws().photoResponse(x, y);
            EXPECT_NEAR(picture.at(x, y), mean * response, mean * 0.0005);
            squares += (response - 1) * (response - 1);
        }
    }
    EXPECT_NEAR(std::sqrt(squares / (model.width * model.height)), 0.02, 0.0005);
}

TEST(SensorFlawsInPictures, DarkSignalIsAddedInTheDark)
{
    SensorModel model = flawlessSensor();
    model.readNoise = 0;
    model.darkSignal = 3;
    SceneRenderer renderer(model);
    const RenderSettings settings = darkPicture(model);
    const RenderedPicture picture = render(renderer, settings);
    double squares = 0;
    for (int y = 0; y < model.height; ++y) {
        for (int x = 0; x < model.width; ++x) {
            const double electrons = renderer.flaws().darkSignal(x, y);
            EXPECT_NEAR(picture.at(x, y), settings.blackLevel * 16 + electrons * mono16PerElectron(model), 1);
            squares += electrons * electrons;
        }
    }
    EXPECT_NEAR(std::sqrt(squares / (model.width * model.height)), 3, 0.1);
}

TEST(SensorFlawsInPictures, TapsDifferAndCanBeCorrected)
{
    SensorModel model = noiselessSensor();
    model.taps = 4;
    model.tapMismatch = 0.06;
    SceneRenderer renderer(model);
    const SensorFlaws &flaws = renderer.flaws();
    RenderSettings settings = flatField(model);
    settings.blackLevel = 200;
    const RenderedPicture picture = render(renderer, settings);
    const double light = picture.mean(0, 0, 64, 192) - 200 * 16;
    double largest = 0;
    for (int tap = 0; tap < 4; ++tap) {
        const double expected = light * flaws.tapGain(tap) + (200 + flaws.tapOffset(tap)) * 16;
        EXPECT_NEAR(picture.mean(tap * 64, 0, 64, 192), expected, light * 0.0005);
        EXPECT_EQ(flaws.tap(tap * 64), tap);
        EXPECT_EQ(flaws.tap(tap * 64 + 63), tap);
        largest = std::max(largest, std::abs(flaws.tapGain(tap) - 1));
        settings.tapGain.at(static_cast<std::size_t>(tap)) = 1 / flaws.tapGain(tap);
        settings.tapBlackLevel.at(static_cast<std::size_t>(tap)) = -flaws.tapOffset(tap);
    }
    EXPECT_NEAR(largest, 0.06, 1e-9);
    const RenderedPicture corrected = render(renderer, settings);
    for (int tap = 1; tap < 4; ++tap)
        EXPECT_NEAR(corrected.mean(tap * 64, 0, 64, 192), corrected.mean(0, 0, 64, 192), light * 0.0005);
}

namespace {
/// Returns how sharp a part of the picture is: the mean of the squared differences between neighbours.
double sharpness(const RenderedPicture &picture, int x, int y, int width, int height)
{
    double sum = 0;
    for (int line = y; line < y + height; ++line)
        for (int column = x; column + 1 < x + width; ++column)
            sum += std::pow(picture.at(column + 1, line) - picture.at(column, line), 2);
    return sum / (width * height);
}

/// Returns the focus position in steps of 10 at which the part is sharpest.
double sharpestPosition(SceneRenderer &renderer, RenderSettings settings, int x, int y, int width, int height)
{
    double best = 0;
    double bestSharpness = 0;
    for (settings.focusPosition = 440; settings.focusPosition <= 560; settings.focusPosition += 10) {
        const double value = sharpness(render(renderer, settings), x, y, width, height);
        if (value > bestSharpness) {
            best = settings.focusPosition;
            bestSharpness = value;
        }
    }
    return best;
}
} // namespace

TEST(SensorFlawsInPictures, PictureIsSharpestAtTheFocusPosition)
{
    SensorModel model = flawlessSensor(320, 240);
    model.focusPosition = 470;
    SceneRenderer renderer(model);
    EXPECT_EQ(sharpestPosition(renderer, wholeSensor(model), 0, 0, 320, 240), 470);
}

TEST(SensorFlawsInPictures, TiltMovesTheBestPositionInItsDirection)
{
    SensorModel model = noiselessSensor(320, 240);
    model.focusPosition = 500;
    model.focusTilt = 100;
    model.focusTiltAngle = 0; // Rises to the right.
    SceneRenderer toTheRight(model);
    EXPECT_NEAR(toTheRight.flaws().bestFocus(40, 120), 462.5, 1);
    EXPECT_NEAR(sharpestPosition(toTheRight, wholeSensor(model), 0, 0, 80, 240), 462.5, 10);
    EXPECT_NEAR(sharpestPosition(toTheRight, wholeSensor(model), 240, 0, 80, 240), 537.5, 10);
    model.focusTiltAngle = 90; // Rises downwards.
    SceneRenderer downwards(model);
    EXPECT_NEAR(sharpestPosition(downwards, wholeSensor(model), 0, 0, 320, 60), 462.5, 10);
    EXPECT_NEAR(sharpestPosition(downwards, wholeSensor(model), 0, 180, 320, 60), 537.5, 10);
}
