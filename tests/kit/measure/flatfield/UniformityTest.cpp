#include "tools/kit/measure/flatfield/Uniformity.h"
#include "tests/kit/measure/flatfield/FieldBench.h"

#include <gtest/gtest.h>

namespace {

constexpr double valuesPerElectron = 4095.0 / 10000; // In 12 bits, with gain 1.

struct UniformityCase
{
    const char *name;
    bool isColor;
    bool isLineScan;
    std::uint32_t pixelFormat;
};

class MeasuredUniformity : public testing::TestWithParam<UniformityCase>
{
protected:
    static Uniformity measure(SensorModel model)
    {
        model.isLineScan = GetParam().isLineScan;
        model.width = model.isLineScan ? 4096 : model.width; // One line needs more pixels for statistics.
        FieldBench bench(model, GetParam().pixelFormat);
        return measureUniformity(bench.dark().mean(), bench.bright().mean());
    }
};

} // namespace

TEST_P(MeasuredUniformity, agreesWithTheSensor)
{
    const SensorModel model = FieldBench::sensor(0, GetParam().isColor);
    const Uniformity measured = measure(model);
    EXPECT_NEAR(measured.prnu, model.photoResponse, 0.04 * model.photoResponse);
    EXPECT_NEAR(measured.pixelPrnu, model.photoResponse, 0.04 * model.photoResponse);
    EXPECT_NEAR(measured.shading, 0, 0.005);
    for (const ChannelUniformity &channel : measured.channels) {
        EXPECT_NEAR(channel.dsnu, model.darkSignal * valuesPerElectron, 0.04 * model.darkSignal)
            << channel.name;
        EXPECT_NEAR(channel.systemGain.value_or(0), valuesPerElectron, 0.03 * valuesPerElectron);
        EXPECT_NEAR(channel.darkNoise, model.readNoise * valuesPerElectron, 0.05 * model.readNoise);
    }
    EXPECT_NEAR(measured.dsnuElectrons.value_or(0), model.darkSignal, 0.06 * model.darkSignal);
}

TEST_P(MeasuredUniformity, separatesShadingFromPixels)
{
    const SensorModel model = FieldBench::sensor(0.4, GetParam().isColor);
    const Uniformity measured = measure(model);
    EXPECT_GT(measured.shading, GetParam().isLineScan ? 0.2 : 0.35);
    EXPECT_LT(measured.shading, 0.5);
    EXPECT_GT(measured.prnu, 5 * model.photoResponse);
    EXPECT_NEAR(measured.pixelPrnu, model.photoResponse, 0.06 * model.photoResponse);
    EXPECT_NEAR(measured.pixelDsnuElectrons.value_or(0), model.darkSignal, 0.06 * model.darkSignal);
    // The corners are darker than the middle.
    EXPECT_GT(measured.horizontal.at(measured.horizontal.size() / 2), measured.horizontal.front() + 0.1);
    EXPECT_EQ(measured.vertical.empty(), GetParam().isLineScan);
}

INSTANTIATE_TEST_SUITE_P(Sensors, MeasuredUniformity,
    testing::Values(UniformityCase{"Mono12", false, false, fieldMono12},
        UniformityCase{"Mono12p", false, false, fieldMono12p},
        UniformityCase{"BayerRG12", true, false, fieldBayerRG12},
        UniformityCase{"LineScan", false, true, fieldMono12}),
    [](const auto &tested) { return tested.param.name; });

TEST(UniformityOfAFlawedSensor, defectsCountInTheStandardNumbersOnly)
{
    SensorModel model = FieldBench::sensor(0);
    model.hotPixels = 500;
    FieldBench bench(model);
    const Uniformity measured = measureUniformity(bench.dark().mean(), bench.bright().mean());
    EXPECT_GT(measured.dsnuElectrons.value_or(0), 2 * model.darkSignal);
    EXPECT_NEAR(measured.pixelDsnuElectrons.value_or(0), model.darkSignal, 0.06 * model.darkSignal);
}
