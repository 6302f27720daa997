#include "tests/kit/measure/linescan/LineScanDevice.h"
#include "tools/kit/measure/linescan/PlanBuilder.h"
#include "tools/kit/measure/linescan/PlanWriter.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

using Trigger = LineScanInputs::Trigger;

/// 7 µm pixels at a magnification of 0.5 are 14 µm on the object.
LineScanInputs movingAt(double speed)
{
    LineScanInputs inputs;
    inputs.speed = speed;
    inputs.pixelSize = 7;
    inputs.magnification = 0.5;
    return inputs;
}

LineScanInputs withEncoder(double step)
{
    LineScanInputs inputs = movingAt(0);
    inputs.trigger = Trigger::Encoder;
    inputs.encoderStep = step;
    return inputs;
}

LineRatePlan planFor(ScriptedDevice &device, const LineScanInputs &inputs)
{
    LineScanCamera camera;
    EXPECT_TRUE(readLineScanCamera(device, camera));
    return PlanBuilder(inputs, camera).build();
}

std::vector<std::string> texts(const LineRatePlan &plan)
{
    std::vector<std::string> texts;
    for (const PlannedSetting &setting : plan.settings)
        texts.push_back(settingText(setting));
    return texts;
}

bool contains(const Sentence &sentence, const char *part)
{
    return !sentence.isEmpty() && toEnglish(sentence).find(part) != std::string::npos;
}

} // namespace

TEST(LineScanInputs, lengthsOnTheObjectAreCalculated)
{
    LineScanInputs inputs = movingAt(500);
    EXPECT_DOUBLE_EQ(*objectPixelOf(inputs, 1), 14);
    EXPECT_DOUBLE_EQ(*objectPixelOf(inputs, 2), 28); // Binning.
    inputs.objectPixel = 20;
    EXPECT_DOUBLE_EQ(*objectPixelOf(inputs, 2), 20);
    inputs.pulsesPerRevolution = 1000;
    inputs.rollerDiameter = 100;
    EXPECT_NEAR(*encoderStepOf(inputs), 0.314159, 1e-6);
    EXPECT_TRUE(problemOf(inputs).isEmpty());
    EXPECT_TRUE(contains(problemOf(movingAt(0)), "speed"));
    EXPECT_TRUE(contains(problemOf(movingAt(-1)), "greater than 0"));
    EXPECT_TRUE(contains(problemOf(withEncoder(0)), "diameter"));
    inputs.objectPixel = inputs.magnification = 0;
    EXPECT_TRUE(contains(problemOf(inputs), "magnification"));
}

TEST(LineScanInputs, areRememberedAsJson)
{
    LineScanInputs inputs = withEncoder(0.01);
    inputs.usesLongestExposure = true;
    EXPECT_EQ(toJson(lineScanInputs(toJson(inputs))), toJson(inputs));
    const auto damaged = nlohmann::ordered_json::parse(R"({"trigger": 3, "speedMmPerS": "fast"})");
    EXPECT_EQ(toJson(lineScanInputs(damaged)), toJson(LineScanInputs()));
    EXPECT_EQ(toJson(lineScanInputs(nlohmann::ordered_json())), toJson(LineScanInputs()));
}

TEST(LineScanPlan, lowerRateIsWrittenBeforeTheExposure)
{
    LineScanDevice device;
    LineScanInputs inputs = movingAt(70);
    inputs.usesLongestExposure = true;
    const LineRatePlan plan = planFor(device, inputs);
    EXPECT_TRUE(plan.isPossible());
    EXPECT_DOUBLE_EQ(*plan.wantedRate, 5000);
    EXPECT_NEAR(*plan.longestExposure, 198, 1e-6); // 200 µs less the dead time of 2 µs.
    EXPECT_TRUE(plan.warnings.empty());
    ASSERT_EQ(plan.settings.size(), 3U);
    EXPECT_EQ(plan.settings[0].name, "AcquisitionLineRateEnable");
    EXPECT_EQ(settingText(plan.settings[1]), "AcquisitionLineRate = 5000.0");
    EXPECT_EQ(plan.settings[1].before, NodeValue(10'000.0));
    EXPECT_EQ(plan.settings[2].name, "ExposureTime");
    EXPECT_TRUE(device.changedValues().empty()); // Reading has put the selectors back.
}

TEST(LineScanPlan, higherRateNeedsAShorterExposureFirst)
{
    LineScanDevice device;
    const LineRatePlan plan = planFor(device, movingAt(560)); // 40 kHz.
    EXPECT_TRUE(plan.isPossible());
    ASSERT_EQ(plan.settings.size(), 3U);
    EXPECT_EQ(plan.settings[0].name, "ExposureTime");
    EXPECT_NEAR(std::get<double>(plan.settings[0].value), 23, 1e-6);
    ASSERT_EQ(plan.warnings.size(), 1U);
    EXPECT_TRUE(contains(plan.warnings[0], "exposure of 50.0 µs is longer than a line"));
    EXPECT_TRUE(applyPlan(device, plan).isEmpty());
    EXPECT_EQ(device.value("AcquisitionLineRate"), NodeValue(40'000.0));
    EXPECT_TRUE(writeSettings(device, undoOf(plan.settings)).isEmpty());
    EXPECT_TRUE(device.changedValues().empty());
}

TEST(LineScanPlan, exposureFitsItsIncrementAndIsNeverBelowItsMinimum)
{
    LineScanDevice device;
    NodeState &exposure = device.feature("ExposureTime").state;
    exposure.increment = std::int64_t(2); // 2, 4 ... µs; the rate leaves 23 µs, to which 24 µs are as near.
    EXPECT_DOUBLE_EQ(*planFor(device, movingAt(560)).exposure, 22);
    exposure.minimum = 30.0;
    const LineRatePlan plan = planFor(device, movingAt(560));
    EXPECT_DOUBLE_EQ(*plan.exposure, 30);
    EXPECT_EQ(plan.limit.reason, RateReason::Camera);
    EXPECT_FALSE(plan.isPossible());
}

TEST(LineScanPlan, rateIsRoundedToTheIncrement)
{
    LineScanDevice device;
    const LineRatePlan plan = planFor(device, movingAt(0.1));
    EXPECT_NEAR(*plan.wantedRate, 7.142857, 1e-6);
    EXPECT_DOUBLE_EQ(*plan.rate, 7);
    EXPECT_NEAR(plan.errorPercent, -2, 1e-6);
    ASSERT_EQ(plan.warnings.size(), 1U);
    EXPECT_TRUE(contains(plan.warnings[0], "2.0 % too flat. Change the magnification or the speed."));
    const LineRatePlan encoder = planFor(device, withEncoder(1)); // 71.4 lines per pulse; 32 are possible.
    ASSERT_EQ(encoder.warnings.size(), 1U);
    EXPECT_TRUE(contains(encoder.warnings[0], "too flat. Change the magnification, or use another encoder."));
}

TEST(LineScanPlan, encoderIsSetUpBeforeTheTriggerIsSwitchedOn)
{
    LineScanDevice device;
    const LineRatePlan plan = planFor(device, withEncoder(0.035)); // 2.5 lines per pulse.
    EXPECT_TRUE(plan.isPossible());
    EXPECT_DOUBLE_EQ(*plan.wantedRatio, 2.5);
    EXPECT_NEAR(plan.errorPercent, 0, 1e-9);
    EXPECT_EQ(texts(plan),
        (std::vector<std::string>{"EncoderSourceA [EncoderSelector=Encoder0] = Line0",
            "EncoderSourceB [EncoderSelector=Encoder0] = Line1",
            "EncoderDivider [EncoderSelector=Encoder0] = 2",
            "EncoderResolution [EncoderSelector=Encoder0] = 0.035",
            "TriggerMultiplier [TriggerSelector=LineStart] = 5",
            "TriggerSource [TriggerSelector=LineStart] = Encoder0",
            "TriggerActivation [TriggerSelector=LineStart] = RisingEdge",
            "TriggerMode [TriggerSelector=LineStart] = On"}));
    EXPECT_TRUE(applyPlan(device, plan).isEmpty());
    LineScanCamera camera;
    ASSERT_TRUE(readLineScanCamera(device, camera));
    EXPECT_TRUE(camera.usesEncoder());
    EXPECT_DOUBLE_EQ(camera.presentRatio().linesPerPulse(), 2.5);
    EXPECT_EQ(device.value("TriggerSelector"), NodeValue("FrameStart"));
    EXPECT_TRUE(PlanBuilder(withEncoder(0.035), camera).build().settings.empty());
    // Back to the camera's own rate.
    EXPECT_EQ(texts(PlanBuilder(movingAt(140), camera).build()).front(),
        "TriggerMode [TriggerSelector=LineStart] = Off");
}

TEST(LineScanPlan, encoderKeepsWhatCannotBeWritten)
{
    LineScanDevice device;
    const auto limits = [&device] {
        LineScanCamera camera;
        EXPECT_TRUE(readLineScanCamera(device, camera));
        return camera.ratioLimits();
    };
    EXPECT_EQ(limits().countsPerPulse, (std::vector<int>{1, 4}));
    device.feature("EncoderDivider").state.maximum = 1e30;
    EXPECT_EQ(limits().encoderDivider.max, 2'147'483'647);
    NodeState &mode = device.feature("EncoderMode").state;
    mode.availableEntries = {"HighResolution"};
    EXPECT_EQ(limits().countsPerPulse, std::vector<int>{4});
    mode.availableEntries = {"FourPhase"};
    EXPECT_EQ(limits().countsPerPulse, std::vector<int>{1});
    mode.availableEntries = {"FourPhase", "HighResolution"};
    mode.access = NodeAccess::ReadOnly;
    EXPECT_EQ(limits().countsPerPulse, std::vector<int>{1});
    device.set("EncoderSelector", "Encoder0");
    device.set("EncoderMode", "HighResolution");
    EXPECT_EQ(limits().countsPerPulse, std::vector<int>{4});
}

TEST(LineScanPlan, limitsAreNamedWithTheirReason)
{
    LineScanDevice device;
    device.set("PixelFormat", "Mono12");
    const LineRatePlan link = planFor(device, movingAt(1750)); // 125 kHz.
    EXPECT_EQ(link.limit.reason, RateReason::Link);
    ASSERT_FALSE(link.warnings.empty());
    EXPECT_TRUE(contains(link.warnings[0], "The link carries 1000 MB/s: at most 122.1 kHz"));
    EXPECT_NEAR(*link.highestSpeed, 122'070 * 0.014, 0.1);
    device.set("PixelFormat", "Mono8");
    device.set("ExposureTime", 2.0);
    const LineRatePlan sensor = planFor(device, movingAt(2000)); // 143 kHz.
    EXPECT_FALSE(sensor.isPossible());
    EXPECT_TRUE(contains(sensor.problem, "The camera takes at most 125.0 kHz"));
}

TEST(LineScanPlan, refusedSettingPutsEverythingBack)
{
    LineScanDevice device;
    // The limit of the sensor shows only after the exposure was shortened.
    const LineRatePlan plan = planFor(device, movingAt(2000));
    EXPECT_TRUE(plan.isPossible());
    const Sentence refused = applyPlan(device, plan);
    EXPECT_TRUE(contains(refused, "at most 125.00 kHz, but square pixels need 142.86 kHz"));
    EXPECT_TRUE(device.changedValues().empty());

    const LineRatePlan encoder = planFor(device, withEncoder(0.035));
    device.feature("TriggerMode").state.lockReason = LockReason::ReadOnlyNode;
    EXPECT_TRUE(contains(applyPlan(device, encoder), "refused TriggerMode [TriggerSelector=LineStart] = On"));
    EXPECT_TRUE(device.changedValues().empty());
}

TEST(LineScanPlan, crashWhileWritingLeavesNothingBehind)
{
    LineScanDevice device;
    const LineRatePlan plan = planFor(device, movingAt(560));
    // The camera's process remembers the values while they are written.
    CvxResult meanwhile;
    device.feature("AcquisitionLineRate").onWrite
        = [&](NodeValue &) { meanwhile = device.BeginTemporaryChanges(); };
    EXPECT_TRUE(writeSettingsSafely(device, plan.settings).isEmpty());
    EXPECT_EQ(meanwhile.code, CvxErrorAlreadyStarted);
    EXPECT_EQ(device.EndTemporaryChanges(TemporaryChanges::PutBack).code, CvxErrorNotAvailable);
    EXPECT_EQ(device.value("AcquisitionLineRate"), NodeValue(40'000.0));
    EXPECT_TRUE(writeSettingsSafely(device, undoOf(plan.settings)).isEmpty());

    EXPECT_TRUE(contains(writeSettingsSafely(device, planFor(device, movingAt(2000)).settings), "at most"));
    EXPECT_TRUE(device.changedValues().empty());
    EXPECT_EQ(device.EndTemporaryChanges(TemporaryChanges::PutBack).code, CvxErrorNotAvailable);
}

TEST(LineScanPlan, lockOfTheStreamIsNoticed)
{
    LineScanDevice device;
    EXPECT_FALSE(planFor(device, movingAt(70)).needsPause());
    device.feature("AcquisitionLineRateEnable").state.lockReason = LockReason::StreamRunning;
    EXPECT_TRUE(planFor(device, movingAt(70)).needsPause());
}

TEST(LineScanPlan, areaScanCameraIsRefused)
{
    ScriptedDevice device;
    device.addEntries("DeviceScanType", {"Areascan"});
    EXPECT_TRUE(contains(planFor(device, movingAt(70)).problem, "takes whole pictures"));
}

TEST(LineScanPlan, resultContainsWhatWasPlanned)
{
    LineScanDevice device;
    const nlohmann::ordered_json json = toJson(planFor(device, withEncoder(0.035)));
    EXPECT_EQ(json["encoder"]["multiplier"], 5);
    EXPECT_EQ(json["settings"].size(), 8U);
    EXPECT_EQ(json["settings"][0]["before"], "Off");
    EXPECT_EQ(json["settings"][0]["selectors"]["EncoderSelector"], "Encoder0");
}
