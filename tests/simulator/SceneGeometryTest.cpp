#include "tests/simulator/RenderedPicture.h"

#include <gtest/gtest.h>

#include <cmath>

// Regions, reversal, binning, colours, movement, and line scan.

namespace {
RenderedPicture mirrored(const RenderedPicture &picture, bool isMirroredX, bool isMirroredY)
{
    RenderedPicture result = picture;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            result.values.at(static_cast<std::size_t>(y * picture.width + x)) = picture.at(
                isMirroredX ? picture.width - 1 - x : x, isMirroredY ? picture.height - 1 - y : y);
    return result;
}

RenderedPicture cropped(const RenderedPicture &picture, int left, int top, int width, int height)
{
    RenderedPicture result{width, height, {}};
    for (int y = top; y < top + height; ++y)
        for (int x = left; x < left + width; ++x)
            result.values.push_back(picture.at(x, y));
    return result;
}

SensorModel sensorWithFlaws()
{
    SensorModel model;
    model.width = 256;
    model.height = 192;
    model.taps = 2;
    model.tapMismatch = 0.06;
    model.shading = 0.3;
    model.hotPixels = 300;
    model.focusTilt = 60;
    return model;
}

SensorModel colorSensor(SensorModel model)
{
    model.isColor = true;
    return model;
}

int channelAt(const RenderedPicture &rgb, int x, int y, int channel)
{
    return rgb.values.at(static_cast<std::size_t>((y * rgb.width + x) * 3 + channel));
}

/// Returns the mean of the pixels of one colour of a mosaic.
double colorMean(const RenderedPicture &picture, int x, int y)
{
    return picture.mean(x, y, picture.width - 1, picture.height - 1, 2);
}
} // namespace

TEST(SceneGeometry, PictureDependsOnlyOnModelAndSettings)
{
    const SensorModel model = sensorWithFlaws();
    RenderSettings settings = wholeSensor(model);
    settings.frameNumber = 77;
    SceneRenderer renderer(model);
    const std::vector<std::uint8_t> picture = renderBytes(renderer, settings);
    RenderSettings other = settings;
    other.frameNumber = 3;
    other.focusPosition = 530;
    other.offsetX = 20;
    other.width = 100;
    EXPECT_NE(renderBytes(renderer, other), picture);
    EXPECT_EQ(renderBytes(renderer, settings), picture);
    SensorModel neighbour = model;
    neighbour.seed = 2;
    SceneRenderer neighbourRenderer(neighbour);
    EXPECT_NE(renderBytes(neighbourRenderer, settings), picture);
}

TEST(SceneGeometry, RegionIsPartOfTheWholePicture)
{
    for (const double focus : {500.0, 560.0}) {
        const SensorModel model = sensorWithFlaws();
        RenderSettings settings = wholeSensor(model);
        settings.focusPosition = focus;
        const RenderedPicture whole = render(model, settings);
        settings.offsetX = 37;
        settings.offsetY = 51;
        settings.width = 101;
        settings.height = 80;
        EXPECT_EQ(render(model, settings).values, cropped(whole, 37, 51, 101, 80).values);
    }
}

TEST(SceneGeometry, ReversalMirrorsThePicture)
{
    const SensorModel model = sensorWithFlaws();
    const RenderSettings straight = wholeSensor(model);
    const RenderedPicture picture = render(model, straight);
    for (const auto &[isReversedX, isReversedY] : {std::pair(true, false), {false, true}, {true, true}}) {
        RenderSettings settings = straight;
        settings.isReversedX = isReversedX;
        settings.isReversedY = isReversedY;
        const RenderedPicture expected = mirrored(picture, isReversedX, isReversedY);
        EXPECT_EQ(render(model, settings).values, expected.values);
        settings.offsetX = 10;
        settings.offsetY = 30;
        settings.width = 33;
        settings.height = 44;
        EXPECT_EQ(render(model, settings).values, cropped(expected, 10, 30, 33, 44).values);
    }
}

TEST(SceneGeometry, BinningCombinesNeighbours)
{
    const SensorModel model = sensorWithFlaws();
    RenderSettings settings = wholeSensor(model);
    settings.exposureTime = 1000;
    const RenderedPicture picture = render(model, settings);
    settings.binningX = 3;
    settings.binningY = 2;
    settings.width = 85;
    settings.height = 96;
    const RenderedPicture sum = render(model, settings);
    settings.binningMode = BinningMode::Average;
    const RenderedPicture average = render(model, settings);
    const double black = settings.blackLevel * mono16PerUnit;
    for (int y = 0; y < settings.height; ++y) {
        for (int x = 0; x < settings.width; ++x) {
            const double light = picture.mean(3 * x, 2 * y, 3, 2) - black;
            EXPECT_NEAR(sum.at(x, y), std::min(65535.0, light * 6 + black), 4);
            EXPECT_NEAR(average.at(x, y), light + black, 1);
        }
    }
}

TEST(SceneGeometry, SceneMovesByTheShift)
{
    for (const bool isColor : {false, true}) {
        SensorModel model = noiselessSensor();
        model.isColor = isColor;
        SceneRenderer renderer(model);
        RenderSettings settings = wholeSensor(model, isColor ? bayerRG8 : mono8);
        const RenderedPicture before = render(renderer, settings);
        settings.frameNumber = 7;
        const SceneRenderer::Shift shift = renderer.sceneShift(7);
        EXPECT_GT(shift.x, 2);
        EXPECT_GT(shift.y, 2);
        const RenderedPicture after = cropped(render(renderer, settings), 0, 0, 200, 150);
        const RenderedPicture expected = cropped(before, shift.x, shift.y, 200, 150);
        for (std::size_t i = 0; i < expected.values.size(); ++i)
            EXPECT_NEAR(
                after.values[i], expected.values[i], 1); // Rounding of the little noise that there is.
    }
}

TEST(SceneColors, MosaicBeginsWithRedAlsoAfterReversalAndBinning)
{
    const SensorModel model = colorSensor(flawlessSensor());
    const std::array<double, 3> response = SensorFlaws::colorResponse();
    for (const bool isReversed : {false, true}) {
        for (const int binning : {1, 2}) {
            RenderSettings settings = flatField(model, bayerRG12);
            settings.isReversedX = settings.isReversedY = isReversed;
            settings.binningX = settings.binningY = binning;
            settings.binningMode = BinningMode::Average;
            settings.width /= binning;
            settings.height /= binning;
            settings.blackLevel = 0;
            const RenderedPicture picture = render(model, settings);
            const double green = colorMean(picture, 1, 0);
            EXPECT_NEAR(colorMean(picture, 0, 0) / green, response[0], 0.01);
            EXPECT_NEAR(colorMean(picture, 0, 1) / green, 1, 0.01);
            EXPECT_NEAR(colorMean(picture, 1, 1) / green, response[2], 0.01);
        }
    }
}

TEST(SceneColors, ReversedPictureShowsTheSameColors)
{
    const SensorModel model = colorSensor(noiselessSensor(320, 240));
    RenderSettings settings = wholeSensor(model, rgb8);
    settings.focusPosition += 100; // Without blur, edges have false colours.
    const RenderedPicture picture = render(model, settings);
    settings.isReversedX = settings.isReversedY = true;
    const RenderedPicture reversed = render(model, settings);
    const auto redOverBlue = [](const RenderedPicture &rgb, int x, int y) {
        return channelAt(rgb, x, y, 0) - channelAt(rgb, x, y, 2);
    };
    int coloredPixels = 0;
    int differentPixels = 0;
    for (int y = 0; y < 240; ++y) {
        for (int x = 0; x < 320; ++x) {
            const int color = redOverBlue(picture, x, y);
            if (std::abs(color) < 30)
                continue;
            ++coloredPixels;
            differentPixels += std::abs(color - redOverBlue(reversed, 319 - x, 239 - y)) > 30 ? 1 : 0;
        }
    }
    EXPECT_GT(coloredPixels, 500);
    EXPECT_LT(differentPixels, coloredPixels / 20);
}

TEST(SceneColors, BalanceMakesAGreySurfaceGrey)
{
    const SensorModel model = colorSensor(noiselessSensor());
    RenderSettings settings = flatField(model, rgb8);
    for (std::size_t channel = 0; channel < 3; ++channel)
        settings.balanceRatio.at(channel) = 1 / SensorFlaws::colorResponse().at(channel);
    const RenderedPicture picture = render(model, settings);
    EXPECT_GT(picture.mean(), 80);
    EXPECT_EQ(*std::min_element(picture.values.begin(), picture.values.end()),
        *std::max_element(picture.values.begin(), picture.values.end()));
}

TEST(SceneColors, RgbIsInterpolatedFromTheMosaic)
{
    const SensorModel model = colorSensor(sensorWithFlaws());
    const RenderedPicture rgb = render(model, wholeSensor(model, rgb8));
    const RenderedPicture mosaic = render(model, wholeSensor(model, bayerRG8));
    const auto meanOf = [&](std::initializer_list<std::pair<int, int>> pixels) {
        int sum = 0;
        for (const auto &[x, y] : pixels)
            sum += mosaic.at(x, y);
        return static_cast<double>(sum) / static_cast<double>(pixels.size());
    };
    for (int y = 2; y < 190; y += 2) {
        for (int x = 2; x < 254; x += 2) {
            // Channels of the pixel with the red filter.
            EXPECT_EQ(channelAt(rgb, x, y, 0), mosaic.at(x, y));
            EXPECT_NEAR(channelAt(rgb, x, y, 1), meanOf({{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}}), 1);
            EXPECT_NEAR(channelAt(rgb, x, y, 2),
                meanOf({{x - 1, y - 1}, {x + 1, y - 1}, {x - 1, y + 1}, {x + 1, y + 1}}), 1);
            // Channels of the two pixels with a green filter.
            EXPECT_NEAR(channelAt(rgb, x + 1, y, 0), meanOf({{x, y}, {x + 2, y}}), 1);
            EXPECT_NEAR(channelAt(rgb, x + 1, y, 2), meanOf({{x + 1, y - 1}, {x + 1, y + 1}}), 1);
            EXPECT_NEAR(channelAt(rgb, x, y + 1, 0), meanOf({{x, y}, {x, y + 2}}), 1);
        }
    }
}

TEST(SceneColors, RegionOfRgbIsPartOfTheWholePicture)
{
    const SensorModel model = colorSensor(sensorWithFlaws());
    RenderSettings settings = wholeSensor(model, rgb8);
    RenderedPicture whole = render(model, settings);
    whole.width *= 3;
    settings.offsetX = 38;
    settings.offsetY = 50;
    settings.width = 102;
    settings.height = 80;
    EXPECT_EQ(render(model, settings).values, cropped(whole, 38 * 3, 50, 102 * 3, 80).values);
}

namespace {
RenderSettings linePicture(const SensorModel &model)
{
    RenderSettings settings = wholeSensor(model, mono8);
    settings.height = 200;
    return settings;
}

SensorModel lineSensor()
{
    SensorModel model = noiselessSensor(256, 1);
    model.isLineScan = true;
    return model;
}
} // namespace

TEST(SceneLineScan, SceneMovesByTheLineStep)
{
    const SensorModel model = lineSensor();
    SceneRenderer renderer(model);
    RenderSettings settings = linePicture(model);
    const RenderedPicture picture = render(renderer, settings);
    settings.lineStep = 2;
    settings.linePosition = 10;
    const RenderedPicture stretched = render(renderer, settings);
    for (int y = 0; y < 90; ++y)
        EXPECT_EQ(cropped(stretched, 0, y, 256, 1).values, cropped(picture, 0, 10 + 2 * y, 256, 1).values);
    EXPECT_GT(picture.variance(), 1000);
}

TEST(SceneLineScan, JitterMovesSingleLines)
{
    const SensorModel model = lineSensor();
    SceneRenderer renderer(model);
    RenderSettings settings = linePicture(model);
    const RenderedPicture even = render(renderer, settings);
    settings.lineJitter = 1;
    const RenderedPicture shaken = render(renderer, settings);
    int moved = 0;
    for (int y = 0; y < 200; ++y)
        moved += cropped(even, 0, y, 256, 1).values != cropped(shaken, 0, y, 256, 1).values ? 1 : 0;
    EXPECT_GT(moved, 80);
    EXPECT_LT(moved, 180);
}

TEST(SceneLineScan, DefectsAreColumns)
{
    SensorModel model = lineSensor();
    model.stuckPixels = 20000;
    SceneRenderer renderer(model);
    const RenderedPicture picture = render(renderer, linePicture(model));
    ASSERT_FALSE(renderer.flaws().defects().empty());
    for (const DefectPixel &defect : renderer.flaws().defects())
        EXPECT_EQ(picture.mean(defect.x, 0, 1, 200), defect.kind == DefectPixel::Kind::StuckWhite ? 255 : 0);
}
