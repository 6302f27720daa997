#include "tools/kit/measure/flatfield/ReferenceChecks.h"
#include "tests/kit/measure/flatfield/FieldBench.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

/// Returns the findings as text; fatal ones begin with "!".
std::string textOf(const ReferenceFindings &findings)
{
    std::string text;
    for (const ReferenceFinding &finding : findings)
        text += (finding.isFatal ? "!" : "") + toEnglish(finding.sentence) + '\n';
    return text;
}

struct ReferenceCase
{
    const char *name;
    std::function<void(FieldBench &)> change; ///< Before the bright images.
    SceneTarget target;
    const char *finding; ///< A part of the only finding; empty if there is none.
};

class BrightReference : public testing::TestWithParam<ReferenceCase>
{ };

} // namespace

TEST_P(BrightReference, isJudged)
{
    SensorModel model = FieldBench::sensor(0.4);
    model.taps = 4;
    model.tapMismatch = 0.04;
    model.hotPixels = 100;
    model.blinkingPixels = 10;
    FieldBench bench(model);
    const FrameStack dark = bench.dark(8);
    GetParam().change(bench);
    const std::string text = textOf(checkBrightImages(bench.take(GetParam().target, 16), dark));
    if (*GetParam().finding == '\0')
        EXPECT_EQ(text, "");
    else
        EXPECT_NE(text.find(GetParam().finding), std::string::npos) << text;
}

INSTANTIATE_TEST_SUITE_P(Cases, BrightReference,
    testing::Values(ReferenceCase{"good", [](FieldBench &) {}, SceneTarget::FlatField, ""},
        ReferenceCase{"clipped", [](FieldBench &bench) { bench.settings.exposureTime = 14000; },
            SceneTarget::FlatField, "in the bright images are clipped"},
        ReferenceCase{
            "lensStillCovered", [](FieldBench &) {}, SceneTarget::LensCap, "!The bright images are too"},
        ReferenceCase{"dark", [](FieldBench &bench) { bench.settings.exposureTime = 3500; },
            SceneTarget::FlatField, "The bright images have"},
        ReferenceCase{"flickering", [](FieldBench &bench) { bench.lightChange = 0.08; },
            SceneTarget::FlatField, "The brightness has changed"},
        ReferenceCase{"movingScene", [](FieldBench &) {}, SceneTarget::Chart, "!Parts of the picture"}),
    [](const auto &tested) { return tested.param.name; });

TEST(ReferenceChecks, stillObjectIsNoShading)
{
    FieldBench bench(FieldBench::sensor(0.1));
    const FrameStack dark = bench.dark(8);
    const std::string text = textOf(checkBrightImages(bench.repeat(SceneTarget::Chart, 8), dark));
    EXPECT_NE(text.find("look like an object"), std::string::npos);
}

TEST(ReferenceChecks, darkImagesAreJudged)
{
    FieldBench bench(FieldBench::sensor(0));
    EXPECT_EQ(textOf(checkDarkImages(bench.dark(8))), "");
    EXPECT_EQ(textOf(checkDarkImages(bench.dark(3))).find("!3 images are too few"), 0U);
    EXPECT_EQ(textOf(checkDarkImages(bench.bright(8))).find("!The dark images have "), 0U);
    bench.settings.blackLevel = 0;
    EXPECT_NE(textOf(checkDarkImages(bench.dark(8))).find("Increase BlackLevel"), std::string::npos);
    bench.settings.blackLevel = 64;
    bench.settings.pixelFormat = fieldMono8;
    EXPECT_NE(textOf(checkDarkImages(bench.dark(8))).find("more bits"), std::string::npos);
}

TEST(ReferenceChecks, unsuitableFormatIsNamed)
{
    const std::vector<std::uint8_t> bytes(8 * 8 * 3);
    FrameStack stack(false);
    const Sentence problem = stack.add({bytes.data(), bytes.size(), 8, 8, 0, 0x02180014}, 0, 0);
    EXPECT_NE(toEnglish(problem).find("RGB8"), std::string::npos);
}
