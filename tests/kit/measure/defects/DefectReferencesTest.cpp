#include "tools/kit/measure/defects/DefectReferences.h"
#include "tests/kit/measure/defects/PictureAdder.h"
#include "tests/kit/measure/defects/SensorPictures.h"
#include "tools/kit/measure/defects/DefectFinder.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned referenceImages = 8;

SensorModel referenceSensor(bool isLineScan)
{
    SensorModel model;
    model.width = isLineScan ? 2048 : 640;
    model.height = 480;
    model.isLineScan = isLineScan;
    model.shading = 0.4;
    model.hotPixels = 100;
    model.stuckColumns = isLineScan ? 0 : 1;
    return model;
}

bool contains(const Sentence &sentence, const char *part)
{
    return toEnglish(sentence).find(part) != std::string::npos;
}

} // namespace

TEST(DefectReferences, AcceptsGoodImages)
{
    for (const bool isLineScan : {false, true}) {
        SensorPictures pictures(referenceSensor(isLineScan));
        const PixelStatistics dark = pictures.statistics(
            pictures.settings(SceneTarget::LensCap, 100000, mono12Code), referenceImages);
        const PixelStatistics bright = pictures.statistics(
            pictures.settings(SceneTarget::FlatField, 5000, mono12Code), referenceImages);
        EXPECT_EQ(toEnglish(darkProblem(dark)), "");
        EXPECT_EQ(toEnglish(brightProblem(dark, bright)), "");
        const auto findings = findDefects(dark, bright, [](std::size_t, std::size_t) { return true; });
        EXPECT_EQ(toEnglish(findingsProblem(findings.value())), "");
    }
}

TEST(DefectReferences, NamesWhatIsWrongWithDarkImages)
{
    SensorPictures pictures(referenceSensor(false));
    const auto problem = [&](SceneTarget target, double exposure, double blackLevel, std::uint32_t format) {
        RenderSettings settings = pictures.settings(target, exposure, format);
        settings.blackLevel = blackLevel;
        return darkProblem(pictures.statistics(settings, referenceImages));
    };
    EXPECT_TRUE(contains(problem(SceneTarget::FlatField, 5000, 64, mono12Code), "light reaches the sensor"));
    EXPECT_TRUE(contains(problem(SceneTarget::Chart, 1500, 64, mono12Code), "show something"));
    EXPECT_TRUE(contains(problem(SceneTarget::LensCap, 5000, 0, mono12Code), "black level"));
    EXPECT_TRUE(contains(problem(SceneTarget::LensCap, 5000, 4, mono12Code), "black level"));
    EXPECT_TRUE(contains(problem(SceneTarget::LensCap, 5000, 0, mono8Code), "black level"));
    EXPECT_TRUE(problem(SceneTarget::LensCap, 5000, 16, mono12Code).isEmpty());
}

TEST(DefectReferences, NamesWhatIsWrongWithBrightImages)
{
    struct Case
    {
        const char *name;
        SceneTarget target;
        double firstExposure; // Exposure of the first half of the images.
        double secondExposure;
        bool isMoving;
        const char *expected;
    };
    const Case cases[] = {
        {"lens cap", SceneTarget::LensCap, 5000, 5000, true, "too dark"},
        {"dim light", SceneTarget::FlatField, 500, 500, true, "too dark"},
        {"clipped", SceneTarget::FlatField, 14000, 14000, true, "highest value"},
        {"unsteady light", SceneTarget::FlatField, 5000, 5500, true, "brightness changed"},
        {"moving scene", SceneTarget::Chart, 6000, 6000, true, "moved"},
        {"scene", SceneTarget::Chart, 6000, 6000, false, "show a scene"},
    };
    SensorPictures pictures(referenceSensor(false));
    const PixelStatistics dark
        = pictures.statistics(pictures.settings(SceneTarget::LensCap, 5000, mono12Code), referenceImages);
    for (const Case &test : cases) {
        PixelStatistics bright(dark.layout());
        for (unsigned i = 0; i < referenceImages; ++i) {
            const double exposure = i < referenceImages / 2 ? test.firstExposure : test.secondExposure;
            RenderSettings settings = pictures.settings(test.target, exposure, mono12Code);
            settings.frameNumber = test.isMoving ? 5 + i : 5;
            const std::vector<std::uint8_t> bytes = pictures.render(settings);
            addPicture(bright, rawImage(settings, bytes));
        }
        const Sentence problem = brightProblem(dark, bright);
        EXPECT_TRUE(contains(problem, test.expected)) << test.name << ": " << toEnglish(problem);
    }
}

TEST(DefectReferences, RefusesImplausiblyManyDefects)
{
    DefectFindings findings;
    findings.examinedPixels = 1000;
    findings.candidates.assign(20, {1, 1, 10, 0, 0, 1, false});
    EXPECT_TRUE(findingsProblem(findings).isEmpty());
    findings.candidates.push_back({2, 2, 10, 0, 0, 1, false});
    EXPECT_TRUE(contains(findingsProblem(findings), "2.1 % of the pixels"));
}
