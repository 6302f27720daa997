// These tests check when a camera takes its images, without waiting.

#include "sdk/simulator/AcquisitionSequence.h"
#include "sdk/simulator/CameraTemperature.h"
#include "sdk/simulator/LineSignal.h"
#include "sdk/simulator/SceneSettings.h"
#include "tests/simulator/TestCamera.h"

#include <gtest/gtest.h>

namespace {

using Id = RegisterId;
constexpr std::int64_t oneMillisecond = 1'000'000;
constexpr std::int64_t oneSecond = 1000 * oneMillisecond;

/// Returns registers after power-on with some integers and floats changed.
RegisterBank registersWith(const std::vector<std::pair<RegisterId, std::int64_t>> &integers,
    const std::vector<std::pair<RegisterId, double>> &reals = {}, bool isLineScan = false)
{
    SensorKeys keys;
    keys.isLineScan = isLineScan;
    RegisterBank bank = powerOnRegisters(smallModel(keys));
    for (const auto &[id, value] : integers)
        bank.setInteger(id, value);
    for (const auto &[id, value] : reals)
        bank.setReal(id, value);
    return bank;
}

} // namespace

TEST(AcquisitionClock, imagesFollowTheirScheduleWithoutDrift)
{
    AcquisitionClock clock;
    clock.restart(1000);
    clock.setPeriod(100, 1000);
    EXPECT_EQ(clock.nextImage(), 1000);
    clock.imageTaken(1030); // 30 late.
    EXPECT_EQ(clock.nextImage(), 1100);
    clock.imageTaken(1500); // More than one image late: the camera does not catch up.
    EXPECT_EQ(clock.nextImage(), 1400);
    clock.imageTaken(1501);
    EXPECT_EQ(clock.nextImage(), 1500);
    clock.setPeriod(10, 1450); // A shorter period counts from now on.
    EXPECT_EQ(clock.nextImage(), 1460);
}

TEST(AcquisitionClock, periodIsTheLongestOfAllLimits)
{
    EXPECT_EQ(imagePeriod(registersWith({}, {{Id::AcquisitionFrameRate, 50}})), oneSecond / 50);
    EXPECT_EQ(imagePeriod(registersWith({{Id::AcquisitionFrameRateEnable, 0}})), 0);
    const std::vector<std::pair<RegisterId, std::int64_t>> limited{{Id::AcquisitionFrameRateEnable, 0},
        {Id::DeviceLinkThroughputLimitMode, 1}, {Id::DeviceLinkThroughputLimit, 1'000'000}};
    EXPECT_EQ(imagePeriod(registersWith(limited)), 64 * 48 * oneSecond / 1'000'000);
    EXPECT_EQ(imagePeriod(registersWith({{Id::Height, 100}}, {{Id::AcquisitionLineRate, 1000}}, true)),
        oneSecond / 10);
}

TEST(LineSignal, edgesAreAtMultiplesOfThePeriod)
{
    const LineSignal signal{10}; // A period of 100 ms, high in its first half.
    EXPECT_TRUE(signal.isHigh(1049 * oneMillisecond));
    EXPECT_FALSE(signal.isHigh(1051 * oneMillisecond));
    EXPECT_FALSE(LineSignal{0}.isHigh(0));
    EXPECT_EQ(signal.edgeTime(risingEdge, 1001 * oneMillisecond, 1), 1100 * oneMillisecond);
    EXPECT_EQ(signal.edgeTime(risingEdge, 1001 * oneMillisecond, 3), 1300 * oneMillisecond);
    EXPECT_EQ(signal.edgeTime(fallingEdge, 1001 * oneMillisecond, 1), 1050 * oneMillisecond);
    EXPECT_EQ(signal.edgeTime(anyEdge, 1051 * oneMillisecond, 2), 1150 * oneMillisecond);
    EXPECT_EQ(signal.edgesBetween(1000 * oneMillisecond, 1200 * oneMillisecond), 2);
}

TEST(CameraTemperature, approachesTheRunningTemperatureExponentially)
{
    RegisterBank bank = registersWith({}, {{Id::TemperatureTimeConstant, 100}});
    EXPECT_NEAR(sensorTemperature(bank, 50 * oneSecond), idleTemperature, 1e-9);
    setAcquisitionActive(bank, true, 50 * oneSecond);
    EXPECT_NEAR(sensorTemperature(bank, 50 * oneSecond), idleTemperature, 1e-9);
    const double rise = runningTemperature - idleTemperature;
    EXPECT_NEAR(sensorTemperature(bank, 150 * oneSecond), idleTemperature + rise * 0.632, 0.01);
    EXPECT_NEAR(sensorTemperature(bank, 5000 * oneSecond), runningTemperature, 1e-6);
    setAcquisitionActive(bank, false, 150 * oneSecond);
    EXPECT_NEAR(sensorTemperature(bank, 150 * oneSecond), idleTemperature + rise * 0.632, 0.01);
    EXPECT_NEAR(sensorTemperature(bank, 250 * oneSecond), idleTemperature + rise * 0.632 * 0.368, 0.01);
}

/// Starts a sequence with the registers of a camera that nobody else changes.
class AcquisitionSequenceTest : public testing::Test
{
protected:
    /// Takes over the registers, with the acquisition running.
    void update(RegisterBank bank, std::int64_t now)
    {
        bank.setInteger(Id::AcquisitionActive, 1);
        bank.setInteger(Id::AcquisitionStarts, 1);
        sequence.update(bank, now);
    }

    TestFolder folder;
    RegisterFile registers{folder.file("camera"), GenTL::DEVICE_ACCESS_CONTROL, smallModel()};
    AcquisitionSequence sequence{registers};
};

TEST_F(AcquisitionSequenceTest, nothingHappensBeforeTheStart)
{
    sequence.update(registersWith({}), oneSecond);
    EXPECT_EQ(sequence.nextImage(), std::nullopt);
}

TEST_F(AcquisitionSequenceTest, modeLimitsTheNumberOfImages)
{
    for (const auto &[mode, count] : {std::pair(singleFrame, 1), {multiFrame, 3}}) {
        AcquisitionSequence limited(registers);
        RegisterBank bank = registersWith({{Id::AcquisitionMode, mode}, {Id::AcquisitionFrameCount, 3}});
        bank.setInteger(Id::AcquisitionActive, 1);
        bank.setInteger(Id::AcquisitionStarts, 1);
        limited.update(bank, oneSecond);
        for (int image = 0; image < count; ++image) {
            EXPECT_FALSE(limited.isFinished());
            EXPECT_EQ(limited.nextImage(), oneSecond + image * oneSecond / 25);
            limited.imageTaken(oneSecond + image * oneSecond / 25);
        }
        EXPECT_TRUE(limited.isFinished());
        EXPECT_EQ(limited.nextImage(), std::nullopt);
        bank.setInteger(Id::AcquisitionStarts, 2);
        limited.update(bank, 2 * oneSecond);
        EXPECT_EQ(limited.nextImage(), 2 * oneSecond);
    }
}

TEST_F(AcquisitionSequenceTest, triggeredImageIsCompleteAfterDelayAndExposure)
{
    RegisterBank bank = registersWith({}, {{Id::ExposureTime, 20'000}});
    bank.setInteger(Id::TriggerMode, 1, frameStartTrigger);
    bank.setInteger(Id::TriggerSource, line0Source, frameStartTrigger);
    bank.setReal(Id::TriggerDelay, 5'000, frameStartTrigger);
    bank.setReal(Id::LineSignalFrequency, 10, 0);
    update(bank, 1001 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), 1125 * oneMillisecond);
    sequence.imageTaken(1125 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), 1225 * oneMillisecond);
}

TEST_F(AcquisitionSequenceTest, edgeOfAnOldSignalIsNotAwaited)
{
    RegisterBank bank = registersWith({}, {{Id::ExposureTime, 20'000}});
    bank.setInteger(Id::TriggerMode, 1, frameStartTrigger);
    bank.setInteger(Id::TriggerSource, line0Source, frameStartTrigger);
    bank.setReal(Id::LineSignalFrequency, 0.01, 0);
    update(bank, 1001 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), 100 * oneSecond + 20 * oneMillisecond);
    bank.setReal(Id::Gamma, 2); // Has nothing to do with the trigger.
    update(bank, 1002 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), 100 * oneSecond + 20 * oneMillisecond);
    bank.setReal(Id::LineSignalFrequency, 20, 0);
    update(bank, 1003 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), 1070 * oneMillisecond);
    bank.setInteger(Id::TriggerSource, softwareSource, frameStartTrigger);
    update(bank, 1004 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), std::nullopt);
}

TEST_F(AcquisitionSequenceTest, triggerDuringAnImageIsIgnored)
{
    RegisterBank bank = registersWith({});
    bank.setInteger(Id::TriggerMode, 1, frameStartTrigger);
    update(bank, oneSecond);
    EXPECT_EQ(sequence.nextImage(), std::nullopt);
    registers.addPulse(frameStartTrigger);
    EXPECT_TRUE(sequence.nextImage().has_value());
    registers.addPulse(frameStartTrigger);
    sequence.imageTaken(oneSecond);
    EXPECT_EQ(sequence.nextImage(), std::nullopt);
}

TEST_F(AcquisitionSequenceTest, triggerOfTheAcquisitionReleasesAllImages)
{
    RegisterBank bank = registersWith({});
    bank.setInteger(Id::TriggerMode, 1, acquisitionStartTrigger);
    update(bank, oneSecond);
    EXPECT_EQ(sequence.nextImage(), std::nullopt);
    registers.addPulse(acquisitionStartTrigger);
    const std::optional<std::int64_t> first = sequence.nextImage();
    ASSERT_TRUE(first.has_value());
    sequence.imageTaken(*first);
    EXPECT_EQ(sequence.nextImage(), *first + oneSecond / 25);
}

TEST_F(AcquisitionSequenceTest, acquisitionStartsWithoutTheEdgeOfAnOldSignal)
{
    RegisterBank bank = registersWith({}, {{Id::ExposureTime, 20'000}});
    bank.setInteger(Id::TriggerMode, 1, acquisitionStartTrigger);
    bank.setInteger(Id::TriggerSource, line0Source, acquisitionStartTrigger);
    bank.setReal(Id::LineSignalFrequency, 0.01, 0);
    update(bank, 1001 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), 100 * oneSecond);
    bank.setInteger(Id::TriggerMode, 0, acquisitionStartTrigger);
    update(bank, 1002 * oneMillisecond);
    EXPECT_EQ(sequence.nextImage(), 1002 * oneMillisecond);
}

TEST_F(AcquisitionSequenceTest, imageOfALineScanCameraNeedsATriggerForEachLine)
{
    RegisterBank bank
        = registersWith({{Id::Height, 10}, {Id::EncoderDivider, 5}}, {{Id::EncoderSpeed, 500}}, true);
    bank.setInteger(Id::TriggerMode, 1, lineStartTrigger);
    bank.setInteger(Id::TriggerSource, encoderSource, lineStartTrigger);
    bank.setInteger(Id::AcquisitionLineRateEnable, 0);
    update(bank, 1001 * oneMillisecond); // The encoder sends 100 pulses per oneSecond.
    EXPECT_EQ(sequence.nextImage(), 1100 * oneMillisecond);
    bank.setInteger(Id::TriggerSource, softwareSource, lineStartTrigger);
    bank.setInteger(Id::AcquisitionStarts, 2);
    bank.setInteger(Id::AcquisitionActive, 1);
    sequence.update(bank, oneSecond);
    for (int line = 0; line < 10; ++line) {
        EXPECT_EQ(sequence.nextImage(), std::nullopt);
        registers.addPulse(lineStartTrigger);
    }
    EXPECT_TRUE(sequence.nextImage().has_value());
}

TEST_F(AcquisitionSequenceTest, multiplierAndDividerChangeTheNumberOfTriggers)
{
    RegisterBank bank = registersWith({{Id::Height, 10}}, {{Id::EncoderSpeed, 500}}, true);
    bank.setInteger(Id::TriggerMode, 1, lineStartTrigger);
    bank.setInteger(Id::TriggerSource, encoderSource, lineStartTrigger);
    bank.setInteger(Id::TriggerMultiplier, 2, lineStartTrigger);
    bank.setInteger(Id::TriggerDivider, 5, lineStartTrigger);
    bank.setInteger(Id::AcquisitionLineRateEnable, 0);
    update(bank, 1001 * oneMillisecond); // 200 lines per oneSecond.
    EXPECT_EQ(sequence.nextImage(), 1050 * oneMillisecond);
    bank.setInteger(Id::TriggerSource, softwareSource, lineStartTrigger);
    bank.setInteger(Id::AcquisitionStarts, 2);
    bank.setInteger(Id::AcquisitionActive, 1);
    sequence.update(bank, oneSecond);
    for (int pulse = 0; pulse < 25; ++pulse) {
        EXPECT_EQ(sequence.nextImage(), std::nullopt);
        registers.addPulse(lineStartTrigger);
    }
    EXPECT_TRUE(sequence.nextImage().has_value());
}

TEST(SceneSettings, objectMovesByOneLineOfTheScenePerCycleOfTheEncoder)
{
    RegisterBank bank = registersWith({{Id::EncoderDivider, 3}}, {{Id::EncoderSpeed, 5000}}, true);
    EXPECT_DOUBLE_EQ(sceneSettings(bank).lineStep, 0.5); // 10,000 lines per second.
    bank.setInteger(Id::TriggerMode, 1, lineStartTrigger);
    bank.setInteger(Id::TriggerSource, encoderSource, lineStartTrigger);
    EXPECT_DOUBLE_EQ(sceneSettings(bank).lineStep, 3);
    bank.setInteger(Id::EncoderMode, 1); // Counts all four edges.
    bank.setInteger(Id::TriggerMultiplier, 5, lineStartTrigger);
    bank.setInteger(Id::TriggerDivider, 2, lineStartTrigger);
    EXPECT_DOUBLE_EQ(sceneSettings(bank).lineStep, 3.0 / 4 * 2 / 5);
    bank.setInteger(Id::TriggerActivation, anyEdge, lineStartTrigger);
    EXPECT_DOUBLE_EQ(sceneSettings(bank).lineStep, 3.0 / 4 * 2 / 5 / 2);
}
