#include "tools/kit/measure/flatfield/FlatFieldBuilder.h"
#include "sdk/simulator/SensorFlaws.h"
#include "tests/kit/measure/flatfield/FieldBench.h"
#include "tools/kit/measure/flatfield/Uniformity.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct CorrectionCase
{
    const char *name;
    bool isColor;
    bool isLineScan;
    std::uint32_t pixelFormat;
    GainDetail detail;
    double highestPixelPrnu; ///< After the correction.
};

class CorrectedField : public testing::TestWithParam<CorrectionCase>
{
protected:
    CorrectedField() : bench(model(), GetParam().pixelFormat) { }

    static SensorModel model()
    {
        SensorModel model = FieldBench::sensor(0.4, GetParam().isColor);
        model.isLineScan = GetParam().isLineScan;
        model.width = model.isLineScan ? 2048 : model.width;
        return model;
    }

    FieldBench bench;
};

double gainAt(const BuiltFlatField &built, const DefectPixel &pixel)
{
    return double(built.field.gain.at(std::size_t(pixel.y) * built.field.width + std::size_t(pixel.x)));
}

} // namespace

TEST_P(CorrectedField, hasLittleShadingInImagesThatWereNotUsed)
{
    const MeanImage dark = bench.dark().mean();
    const MeanImage bright = bench.bright().mean();
    const BuiltFlatField built = buildFlatField(dark, bright, GetParam().detail, GainLevel::Mean);
    EXPECT_EQ(built.field.height, GetParam().isLineScan ? 1U : 240U);
    EXPECT_EQ(built.limitedPixels, 0U);
    EXPECT_EQ(built.defectPixels, 0U);

    const MeanImage laterDark = correctedMean(bench.dark(16).mean(), built.field);
    const MeanImage laterBright = correctedMean(bench.bright(16).mean(), built.field);
    const Uniformity before = measureUniformity(dark, bright);
    const Uniformity after = measureUniformity(laterDark, laterBright);
    EXPECT_GT(before.shading, 0.2);
    EXPECT_LT(after.shading, 0.01);
    EXPECT_LT(after.pixelPrnu, GetParam().highestPixelPrnu);
    // Each colour keeps its level, so the white balance stays.
    for (std::size_t channel = 0; channel < before.channels.size(); ++channel)
        EXPECT_NEAR(after.channels[channel].brightLevel, before.channels[channel].brightLevel,
            0.02 * before.channels[channel].brightLevel);
}

INSTANTIATE_TEST_SUITE_P(Formats, CorrectedField,
    testing::Values(CorrectionCase{"Mono12", false, false, fieldMono12, GainDetail::EveryPixel, 0.0035},
        CorrectionCase{"Mono8", false, false, fieldMono8, GainDetail::EveryPixel, 0.0035},
        CorrectionCase{"BayerRG12", true, false, fieldBayerRG12, GainDetail::EveryPixel, 0.0035},
        CorrectionCase{"BayerRG8", true, false, fieldBayerRG8, GainDetail::EveryPixel, 0.0035},
        CorrectionCase{"LineScan", false, true, fieldMono12, GainDetail::EveryPixel, 0.001},
        CorrectionCase{"ShadingOnly", false, false, fieldMono12, GainDetail::ShadingOnly, 0.006},
        CorrectionCase{"ShadingOnlyBayer", true, false, fieldBayerRG12, GainDetail::ShadingOnly, 0.006}),
    [](const auto &tested) { return tested.param.name; });

TEST(FlatFieldBuilder, smoothGainsHaveNoPixelNoise)
{
    FieldBench bench(FieldBench::sensor(0.4));
    const BuiltFlatField built = buildFlatField(
        bench.dark().mean(), bench.bright().mean(), GainDetail::ShadingOnly, GainLevel::Mean);
    for (std::size_t x = 1; x < built.field.width; ++x)
        ASSERT_NEAR(double(built.field.gain[x]), double(built.field.gain[x - 1]), 0.01);
}

TEST(FlatFieldBuilder, brightestPlaceKeepsItsLevel)
{
    FieldBench bench(FieldBench::sensor(0.4));
    const BuiltFlatField built = buildFlatField(
        bench.dark().mean(), bench.bright().mean(), GainDetail::ShadingOnly, GainLevel::Brightest);
    EXPECT_NEAR(built.lowestGain, 1, 0.01);
    EXPECT_GT(built.highestGain, 1.4);
}

TEST(FlatFieldBuilder, defectPixelsGetTheGainOfTheirNeighbours)
{
    SensorModel model = FieldBench::sensor(0);
    model.stuckPixels = 200;
    model.hotPixels = 200;
    FieldBench bench(model);
    const BuiltFlatField built
        = buildFlatField(bench.dark().mean(), bench.bright().mean(), GainDetail::EveryPixel, GainLevel::Mean);
    const SensorFlaws flaws(model);
    ASSERT_GT(flaws.defects().size(), 20U);
    std::uint32_t stuck = 0;
    for (const DefectPixel &pixel : flaws.defects()) {
        EXPECT_NEAR(gainAt(built, pixel), 1, 0.15) << pixel.x << ", " << pixel.y;
        stuck += pixel.kind != DefectPixel::Kind::Hot;
    }
    EXPECT_GE(built.defectPixels, stuck);
    EXPECT_LE(built.defectPixels, flaws.defects().size());
    EXPECT_EQ(built.limitedPixels, 0U);
}

TEST(FlatFieldBuilder, gainsAreLimited)
{
    MeanImage dark;
    dark.mosaic = {64, 64, 1, 0, 0};
    dark.depth = 8;
    dark.values.assign(64 * 64, 5);
    dark.temporalVariance = {1};
    dark.samples = 10;
    MeanImage bright = dark;
    for (std::size_t i = 0; i < bright.values.size(); ++i)
        bright.values[i] = i % 64 < 8 ? 15 : 205; // Nearly black stripe at the left.
    const BuiltFlatField built = buildFlatField(dark, bright, GainDetail::EveryPixel, GainLevel::Mean);
    EXPECT_EQ(built.limitedPixels, 64U * 8U);
    EXPECT_EQ(built.highestGain, maxFlatFieldGain);
    EXPECT_EQ(built.defectPixels, 0U);
}
