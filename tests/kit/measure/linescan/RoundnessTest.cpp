#include "tests/kit/measure/linescan/LineScanDevice.h"
#include "tools/kit/measure/linescan/LineScanResult.h"
#include "tools/kit/measure/linescan/PlanBuilder.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

RoundTarget targetOf(double heightToWidth, double halfWidth = 100)
{
    RoundTarget target;
    target.ellipse = {200, 300, halfWidth, halfWidth * heightToWidth, 0};
    return target;
}

LineScanInputs knownMachine()
{
    LineScanInputs inputs;
    inputs.speed = 140;
    inputs.objectPixel = 14;
    inputs.encoderStep = 0.028;
    return inputs;
}

LineScanCamera cameraOf(ScriptedDevice &device)
{
    LineScanCamera camera;
    EXPECT_TRUE(readLineScanCamera(device, camera));
    return camera;
}

} // namespace

TEST(Roundness, isTheMeanOfTargetsOfOneSize)
{
    const Roundness roundness
        = roundnessOf({targetOf(1.07), targetOf(1.09), targetOf(1.08), targetOf(2, 40)}, 6);
    EXPECT_EQ(roundness.targets.size(), 3U);
    EXPECT_EQ(roundness.images, 6U);
    EXPECT_NEAR(roundness.errorPercent(), 8, 1e-9);
    EXPECT_NEAR(roundness.deviation, 0.00816, 1e-5);
    EXPECT_NEAR(roundness.rateFactor(), 1 / 1.08, 1e-9);
}

TEST(Roundness, slowLinesAreWaitedFor)
{
    LineScanDevice device;
    EXPECT_EQ(pictureLimit(cameraOf(device)).count(), 10'200); // 1000 lines with 10 kHz take 100 ms.
    device.set("AcquisitionLineRate", 20.0);
    EXPECT_EQ(pictureLimit(cameraOf(device)).count(), 110'000);
    device.set("TriggerSelector", "LineStart");
    device.set("TriggerMode", "On");
    EXPECT_EQ(pictureLimit(cameraOf(device)).count(), 60'000);
    EXPECT_EQ(pictureLimit({}).count(), 60'000);
}

TEST(Roundness, tooTallMeansALowerRate)
{
    LineScanDevice device;
    const LineScanCamera camera = cameraOf(device);
    EXPECT_EQ(toEnglish(roundnessSentence(roundnessOf({targetOf(1.25)}, 1), camera)),
        "The circle is 25.0 % too tall: lower the line rate from 10.000 kHz to 8.000 kHz.");
    EXPECT_EQ(toEnglish(roundnessSentence(roundnessOf({targetOf(0.8)}, 1), camera)),
        "The circle is 20.0 % too flat: raise the line rate from 10.000 kHz to 12.500 kHz.");
    EXPECT_EQ(toEnglish(roundnessSentence(roundnessOf({targetOf(1.004)}, 1), camera)),
        "The circle is round: height and width differ by 0.40 %.");
}

TEST(Roundness, correctionTellsTheTrueSpeed)
{
    LineScanDevice device;
    const LineScanCamera camera = cameraOf(device); // 10 kHz fit 140 mm/s.
    const auto corrected = correctedInputs(knownMachine(), camera, roundnessOf({targetOf(1.25)}, 1));
    ASSERT_TRUE(corrected);
    EXPECT_NEAR(corrected->speed, 112, 1e-9);
    EXPECT_NEAR(*PlanBuilder(*corrected, camera).build().rate, 8000, 0.5);
}

TEST(Roundness, correctionOfAnEncoderTellsItsStep)
{
    LineScanDevice device;
    device.set("TriggerSelector", "LineStart");
    device.set("TriggerMode", "On");
    device.set("TriggerSource", "Encoder0");
    device.set("EncoderDivider", std::int64_t(2));
    const LineScanCamera camera = cameraOf(device);
    const Roundness roundness = roundnessOf({targetOf(1.25)}, 1);
    EXPECT_EQ(toEnglish(roundnessSentence(roundness, camera)),
        "The circle is 25.0 % too tall: lower the lines per encoder pulse from 0.5000 to 0.4000.");
    const auto step = correctedInputs(knownMachine(), camera, roundness);
    ASSERT_TRUE(step);
    EXPECT_NEAR(step->encoderStep, 0.4 * 0.014, 1e-9);
    const EncoderRatio ratio = *PlanBuilder(*step, camera).build().ratio;
    EXPECT_NEAR(ratio.linesPerPulse(), 0.4, 1e-9);

    LineScanInputs roller = knownMachine();
    roller.encoderStep = 0;
    roller.pulsesPerRevolution = 1000;
    roller.rollerDiameter = 2.2;
    const auto diameter = correctedInputs(roller, camera, roundness);
    ASSERT_TRUE(diameter);
    EXPECT_NEAR(*encoderStepOf(*diameter), 0.4 * 0.014, 1e-9);
}

TEST(LineScanResult, tableAndFileContainTargetsAndSettings)
{
    LineScanDevice device;
    LineScanResult result;
    result.inputs = knownMachine();
    result.plan = PlanBuilder(result.inputs, cameraOf(device)).build();
    result.before = roundnessOf({targetOf(1.25)}, 1);
    EXPECT_EQ(resultCsv(result),
        "state,setting,before,value\nplanned,AcquisitionLineRateEnable,false,true\n\n"
        "measured,centerX,centerY,width,height,heightToWidth,turnDegrees,residual\n"
        "before,200.0,300.0,200.0,250.0,1.25,0.0,0.0\n");
    CameraRecord camera;
    camera.serialNumber = "L70881";
    const nlohmann::ordered_json json = resultJson(result, camera);
    EXPECT_EQ(json["camera"]["serialNumber"], "L70881");
    EXPECT_EQ(json["format"], "corvix-x-linescan");
    EXPECT_EQ(json["result"]["before"]["heightToWidth"], 1.25);
    EXPECT_EQ(json["result"]["inputs"]["speedMmPerS"], 140);
    EXPECT_EQ(tablePath("/a.b/web.json"), "/a.b/web.csv");
    EXPECT_EQ(tablePath("/a.b/web"), "/a.b/web.csv");
}
