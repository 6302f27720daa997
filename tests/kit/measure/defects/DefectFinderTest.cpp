#include "tools/kit/measure/defects/DefectFinder.h"
#include "sdk/image/ImageConverter.h"
#include "sdk/simulator/SensorFlaws.h"
#include "tests/kit/measure/defects/SensorPictures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

// Compares the defects that were found with the true ones of the simulated sensor.

namespace {

constexpr int areaWidth = 512; // Width of the area scan sensors.
constexpr int areaHeight = 384;
constexpr unsigned images = 16;
constexpr double darkExposure = 200000;
constexpr double brightExposure = 5000;
constexpr double temperature = 33; // Twice the dark current of 25 °C.

struct CameraCase
{
    const char *name;
    std::uint32_t pixelFormat;
    bool isColor;
    bool isLineScan;
    int depth;
    int taps;
};
const CameraCase cameras[] = {
    {"mono, 12 bits", mono12Code, false, false, 12, 1},
    {"mono, 12 bits packed, two taps", mono12pCode, false, false, 12, 2},
    {"mono, 8 bits", mono8Code, false, false, 8, 1},
    {"Bayer, 12 bits", bayerRG12Code, true, false, 12, 1},
    {"Bayer, 8 bits", bayerRG8Code, true, false, 8, 1},
    {"line scan, 12 bits", mono12Code, false, true, 12, 1},
};

SensorModel sensorOf(const CameraCase &camera)
{
    SensorModel model;
    model.width = camera.isLineScan ? 8192 : areaWidth;
    model.height = areaHeight;
    model.isColor = camera.isColor;
    model.isLineScan = camera.isLineScan;
    model.taps = camera.taps;
    model.tapMismatch = camera.taps > 1 ? 0.04 : 0;
    model.seed = 42;
    model.shading = 0.4;
    const double density = camera.isLineScan ? 10 : 1; // A line has few pixels.
    model.hotPixels = 300 * density;
    model.stuckPixels = 100 * density;
    model.blinkingPixels = 100 * density;
    model.stuckColumns = camera.isLineScan ? 0 : 1;
    return model;
}

SensorModel withoutDefects(SensorModel model)
{
    model.hotPixels = 0;
    model.stuckPixels = 0;
    model.blinkingPixels = 0;
    model.stuckColumns = 0;
    return model;
}

PixelStatistics measured(
    SensorPictures &pictures, SceneTarget target, double exposure, const CameraCase &camera)
{
    RenderSettings settings = pictures.settings(target, exposure, camera.pixelFormat);
    settings.temperature = temperature;
    settings.frameNumber = target == SceneTarget::LensCap ? 100 : 200;
    return pictures.statistics(settings, images);
}

DefectFindings find(SensorPictures &pictures, const CameraCase &camera)
{
    const PixelStatistics dark = measured(pictures, SceneTarget::LensCap, darkExposure, camera);
    const PixelStatistics bright = measured(pictures, SceneTarget::FlatField, brightExposure, camera);
    return findDefects(dark, bright, [](std::size_t, std::size_t) { return true; }).value();
}

/// Returns what is found with the defects of a camera. The first call for each camera takes its time.
const DefectFindings &findingsOf(const CameraCase &camera)
{
    static std::map<const CameraCase *, DefectFindings> known;
    const auto place = known.find(&camera);
    if (place != known.end())
        return place->second;
    SensorPictures pictures(sensorOf(camera));
    return known[&camera] = find(pictures, camera);
}

/// Returns the true deviation of a hot pixel in the dark, in standard deviations of the good pixels' means.
/// These contain the differences of the dark signal, the noise that remains and the rounding.
double trueDeviation(const DefectPixel &defect, const SensorModel &model, const CameraCase &camera,
    unsigned different = images)
{
    const double seconds = darkExposure * 1e-6 * SensorFlaws::darkFactor(temperature);
    const double samples = different * (camera.isLineScan ? 64.0 : 1.0);
    const double noise = model.readNoise * model.readNoise + model.darkCurrent * seconds;
    const double electronsPerStep = model.fullWell / 4095 * std::ldexp(1, 12 - camera.depth);
    const double rounding = electronsPerStep * electronsPerStep / 12;
    return defect.strength * seconds
        / std::sqrt(model.darkSignal * model.darkSignal + noise / samples + rounding);
}

using Places = std::map<std::pair<int, int>, DefectPixelEntry>;

Places placesOf(const DefectMap &map)
{
    Places places;
    for (const DefectPixelEntry &pixel : map.pixels)
        places[{static_cast<int>(pixel.x), static_cast<int>(pixel.y)}] = pixel;
    return places;
}

/// Images of which some come again and again.
class RepeatedPictures
{
public:
    RepeatedPictures(SensorPictures &pictures, SceneTarget target, double exposure, const CameraCase &camera)
        : m_settings(pictures.settings(target, exposure, camera.pixelFormat)),
          m_layout(pictures.statistics(m_settings, 0).layout())
    {
        m_settings.temperature = temperature;
        for (m_settings.frameNumber = 1; m_settings.frameNumber <= minDefectImages; ++m_settings.frameNumber)
            m_pictures.push_back(pictures.render(m_settings));
    }

    PixelStatistics statistics(unsigned different) const
    {
        PixelStatistics statistics(m_layout);
        ImageConverter converter;
        for (unsigned i = 0; i < images; ++i)
            statistics.add(
                rawImage(m_settings, m_pictures[i < different ? i : i * i % different]), converter);
        return statistics;
    }

private:
    RenderSettings m_settings;
    const StatisticsLayout m_layout;
    std::vector<std::vector<std::uint8_t>> m_pictures;
};

/// Checks that a true defect was found with its kind.
void expectFound(const DefectPixel &defect, const Places &found)
{
    using Kind = DefectPixel::Kind;
    const auto place = found.find({defect.x, defect.y});
    ASSERT_NE(place, found.end()) << "kind " << static_cast<int>(defect.kind) << " at " << defect.x << ", "
                                  << defect.y << ", strength " << defect.strength;
    const std::map<Kind, DefectKind> kinds{{Kind::Hot, DefectKind::Hot},
        {Kind::StuckBlack, DefectKind::Stuck}, {Kind::StuckWhite, DefectKind::Stuck},
        {Kind::Blinking, DefectKind::Blinking}};
    EXPECT_EQ(place->second.kind, kinds.at(defect.kind)) << defect.x << ", " << defect.y;
}

} // namespace

TEST(DefectFinder, FindsAllDefectsAndHardlyAnyGoodPixel)
{
    double megapixels = 0;
    int falseDefects = 0;
    int clearDefects = 0;
    for (const CameraCase &camera : cameras) {
        SCOPED_TRACE(camera.name);
        const SensorModel model = sensorOf(camera);
        const SensorFlaws flaws(model);
        const Places found = placesOf(defectMap(findingsOf(camera), usualThreshold));
        std::set<std::pair<int, int>> known;
        for (const DefectPixel &defect : flaws.defects()) {
            known.insert({defect.x, defect.y});
            if (defect.kind == DefectPixel::Kind::Hot && trueDeviation(defect, model, camera) < 8)
                continue;
            ++clearDefects;
            expectFound(defect, found);
        }
        for (const auto &[place, pixel] : found)
            falseDefects += known.count(place) == 0 ? 1 : 0;
        megapixels += model.width * (camera.isLineScan ? 1 : model.height) * 1e-6;
    }
    EXPECT_GT(clearDefects, 1500);
    EXPECT_LE(falseDefects, megapixels);
}

TEST(DefectFinder, ReportsNothingOfASensorWithoutDefects)
{
    for (const CameraCase &camera : cameras) {
        SCOPED_TRACE(camera.name);
        SensorPictures pictures(withoutDefects(sensorOf(camera)));
        EXPECT_EQ(defectMap(find(pictures, camera), usualThreshold).pixels.size(), 0U);
    }
}

TEST(DefectFinder, TakesNoGoodPixelForADefectIfImagesAreRepeated)
{
    const CameraCase &camera = cameras[4];
    const SensorModel model = sensorOf(camera);
    const SensorFlaws flaws(model);
    SensorPictures pictures(model);
    RepeatedPictures dark(pictures, SceneTarget::LensCap, darkExposure, camera);
    RepeatedPictures bright(pictures, SceneTarget::FlatField, brightExposure, camera);
    for (const unsigned different : {1U, 2U, 3U, 5U, 8U}) {
        SCOPED_TRACE(different);
        const auto findings = findDefects(dark.statistics(different), bright.statistics(different),
            [](std::size_t, std::size_t) { return true; });
        Places found = placesOf(defectMap(findings.value(), usualThreshold));
        std::size_t blinking = 0;
        for (const auto &[place, pixel] : found)
            blinking += pixel.kind == DefectKind::Blinking ? 1 : 0;
        EXPECT_EQ(blinking > 0, different >= minDefectImages);
        for (const DefectPixel &defect : flaws.defects()) {
            const bool isClear = defect.kind == DefectPixel::Kind::Hot
                ? trueDeviation(defect, model, camera, different) > 8
                : defect.kind != DefectPixel::Kind::Blinking;
            if (isClear && different > 1) // In a single image, a hot pixel may look like a stuck one.
                expectFound(defect, found);
            const std::size_t known = found.erase({defect.x, defect.y});
            EXPECT_TRUE(!isClear || known == 1) << defect.x << ", " << defect.y;
        }
        EXPECT_EQ(found.size(), 0U);
    }
}

TEST(DefectFinder, FindsPixelsThatReactWrongly)
{
    const CameraCase &camera = cameras[0];
    SensorPictures pictures(withoutDefects(sensorOf(camera)));
    StatisticsLayout layout = measured(pictures, SceneTarget::LensCap, darkExposure, camera).layout();
    layout.offsetX = 100;
    layout.offsetY = 50;
    const auto statistics = [&](SceneTarget target) {
        PixelStatistics set(layout);
        RenderSettings settings = pictures.settings(target, brightExposure, mono12Code);
        ImageConverter converter;
        for (settings.frameNumber = 1; settings.frameNumber <= images; ++settings.frameNumber) {
            std::vector<std::uint8_t> bytes = pictures.render(settings);
            const auto scale = [&](std::size_t x, std::size_t y, double share) {
                std::uint8_t *const pixel = bytes.data() + 2 * (y * areaWidth + x);
                const int value = pixel[0] | pixel[1] << 8;
                const int scaled = static_cast<int>(std::lround(64 + share * (value - 64)));
                pixel[0] = static_cast<std::uint8_t>(scaled & 0xFF);
                pixel[1] = static_cast<std::uint8_t>(scaled >> 8);
            };
            scale(200, 100, 0.1); // Dead.
            scale(300, 100, 0.85);
            scale(301, 200, 1.15);
            set.add(rawImage(settings, bytes), converter);
        }
        return set;
    };
    const PixelStatistics dark = statistics(SceneTarget::LensCap);
    const PixelStatistics bright = statistics(SceneTarget::FlatField);
    const auto findings = findDefects(dark, bright, [](std::size_t, std::size_t) { return true; });
    const DefectMap map = defectMap(findings.value(), usualThreshold);
    EXPECT_EQ(map.width, 612U); // Includes the place of the region on the sensor.
    EXPECT_EQ(map.height, 434U);
    ASSERT_EQ(map.pixels.size(), 3U);
    EXPECT_EQ(map.pixels[0].kind, DefectKind::Dead);
    EXPECT_EQ(std::pair(map.pixels[0].x, map.pixels[0].y), std::pair(300U, 150U));
    EXPECT_EQ(map.pixels[1].kind, DefectKind::Deviating);
    EXPECT_EQ(std::pair(map.pixels[1].x, map.pixels[1].y), std::pair(400U, 150U));
    EXPECT_EQ(map.pixels[2].kind, DefectKind::Deviating);
    EXPECT_EQ(std::pair(map.pixels[2].x, map.pixels[2].y), std::pair(401U, 250U));
    EXPECT_FALSE(findDefects(dark, bright, [](std::size_t, std::size_t) { return false; }));
}

TEST(DefectFinder, HigherThresholdsKeepTheClearerDefects)
{
    const DefectFindings &findings = findingsOf(cameras[0]);
    Places previous = placesOf(defectMap(findings, smallestThreshold));
    EXPECT_EQ(previous.size(), findings.candidates.size());
    for (const double threshold : {4.5, 8.0, 20.0, 100.0}) {
        const Places next = placesOf(defectMap(findings, threshold));
        EXPECT_LE(next.size(), previous.size());
        for (const auto &[place, pixel] : next) {
            EXPECT_GE(pixel.deviation, threshold);
            EXPECT_EQ(previous.count(place), 1U);
        }
        previous = next;
    }
    EXPECT_LT(previous.size(), findings.candidates.size());
    EXPECT_NEAR(findings.darkLevel, 64, 1);
    EXPECT_NEAR(findings.darkNoise, 5 * 0.4095, 0.1); // The read noise of 5 electrons.
    EXPECT_NEAR(findings.darkSpread, 0.4095 * std::hypot(2, 5 / 4.0), 0.1); // DSNU and noise of 16 images.
}

TEST(DefectFinder, RepairedPicturesDifferFromTrueOnesByTheNoise)
{
    for (const CameraCase &camera : cameras) {
        SCOPED_TRACE(camera.name);
        SensorPictures pictures(sensorOf(camera));
        SensorPictures perfect(withoutDefects(sensorOf(camera)));
        const DefectMap map = defectMap(findingsOf(camera), usualThreshold);
        RenderSettings settings
            = pictures.settings(SceneTarget::FlatField, brightExposure, camera.pixelFormat);
        settings.temperature = temperature;
        settings.frameNumber = 999;
        const auto width = static_cast<std::uint32_t>(settings.width);
        const auto height = static_cast<std::uint32_t>(settings.height);
        const auto words = [&](SensorPictures &source, const PlacedCorrection &correction) {
            const std::vector<std::uint8_t> bytes = source.render(settings);
            std::vector<std::uint16_t> values(static_cast<std::size_t>(width) * height);
            ImageConverter converter;
            converter.setCorrection(correction);
            converter.toWords(rawImage(settings, bytes), {0, 0, width, height}, values.data(), width);
            return values;
        };
        const auto correction = std::make_shared<const Correction>(map, std::nullopt);
        const std::vector<std::uint16_t> repaired = words(pictures, {correction, 0, 0});
        const std::vector<std::uint16_t> truth = words(perfect, {});
        const double step = 10000.0 / 4095 * std::ldexp(1, 12 - camera.depth); // Electrons.
        double squares = 0;
        double variances = 0;
        for (const DefectPixelEntry &pixel : map.pixels) {
            const std::size_t index = static_cast<std::size_t>(pixel.y) * width + pixel.x;
            squares += std::pow(static_cast<double>(repaired[index]) - truth[index], 2);
            const double electrons = (truth[index] - 64 * std::ldexp(1, camera.depth - 12)) * step;
            variances += (electrons + 25 + std::pow(0.005 * electrons, 2)) / (step * step) + 1.0 / 12;
        }
        EXPECT_LE(std::sqrt(squares), 2 * std::sqrt(variances));
        EXPECT_GE(map.pixels.size(), 10U);
    }
}
