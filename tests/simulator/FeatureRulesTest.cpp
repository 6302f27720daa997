// These tests check what a camera accepts, and what follows from it. The limits that the register description
// states too are tested together with it.

#include "sdk/simulator/FeatureRules.h"
#include "sdk/simulator/AutomaticControl.h"
#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/UserSets.h"
#include "tests/simulator/TestCamera.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

namespace {

using Id = RegisterId;

GenTL::GC_ERROR write(RegisterBank &bank, RegisterId id, std::int64_t value, std::size_t element = 0)
{
    try {
        std::array<std::uint8_t, 64> bytes{};
        std::memcpy(bytes.data(), &value, sizeof value);
        writeRegister(bank, registerInfo(id), element, bytes.data());
        return GenTL::GC_ERR_SUCCESS;
    } catch (const GenTlError &error) {
        return error.code();
    }
}

GenTL::GC_ERROR writeReal(RegisterBank &bank, RegisterId id, double value)
{
    std::int64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return write(bank, id, bits);
}

} // namespace

class FeatureRulesTest : public testing::Test
{
protected:
    RegisterBank bank = powerOnRegisters(smallModel());
};

TEST_F(FeatureRulesTest, refusedValueChangesNothing)
{
    const RegisterBank before = bank;
    EXPECT_EQ(write(bank, Id::Width, 65), GenTL::GC_ERR_INVALID_VALUE);
    EXPECT_EQ(write(bank, Id::PixelFormat, 0x01080009), GenTL::GC_ERR_INVALID_VALUE); // BayerRG8.
    EXPECT_EQ(writeReal(bank, Id::ExposureTime, std::nan("")), GenTL::GC_ERR_INVALID_VALUE);
    EXPECT_EQ(write(bank, Id::SensorWidth, 64), GenTL::GC_ERR_ACCESS_DENIED);
    EXPECT_EQ(write(bank, Id::ChunkEnable, 0, chunkImage), GenTL::GC_ERR_ACCESS_DENIED);
    EXPECT_EQ(std::memcmp(bank.bytes(), before.bytes(), registersSize), 0);
}

TEST_F(FeatureRulesTest, streamLocksOnlyWhatMustNotChange)
{
    EXPECT_EQ(write(bank, Id::TLParamsLocked, 1), GenTL::GC_ERR_SUCCESS);
    for (const RegisterInfo &info : registerTable()) {
        const GenTL::GC_ERROR locked
            = write(bank, info.id, bank.integer(info.id, info.elements - 1), info.elements - 1);
        EXPECT_EQ(locked == GenTL::GC_ERR_ACCESS_DENIED,
            info.isIn({RegisterUse::Constant, RegisterUse::Status, RegisterUse::Internal, RegisterUse::Locked,
                RegisterUse::LockedCommand}))
            << info.name;
    }
    EXPECT_THROW(checkCommand(bank, registerInfo(Id::UserSetLoad)), GenTlError);
    EXPECT_EQ(writeReal(bank, Id::ExposureTime, 100), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(write(bank, Id::ReverseX, 1), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(write(bank, Id::TLParamsLocked, 0), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(write(bank, Id::Width, 32), GenTL::GC_ERR_SUCCESS);
}

TEST_F(FeatureRulesTest, payloadSizeFollowsFormatRegionAndChunks)
{
    struct
    {
        RegisterId id;
        std::int64_t value;
        std::int64_t payloadSize;
    } const steps[] = {
        {Id::Width, 32, 32 * 48},
        {Id::Height, 10, 32 * 10},
        {Id::PixelFormat, 0x01100003, 32 * 10 * 2}, // Mono10
        {Id::PixelFormat, 0x010A0046, 32 * 10 * 10 / 8}, // Mono10p
        {Id::BinningHorizontal, 2, 16 * 10 * 10 / 8},
        {Id::ChunkModeActive, 1, 16 * 10 * 10 / 8 + 8 + 4 * 16},
    };
    for (const auto &[id, value, payloadSize] : steps) {
        EXPECT_EQ(write(bank, id, value), GenTL::GC_ERR_SUCCESS) << registerInfo(id).name;
        EXPECT_EQ(bank.integer(Id::PayloadSize), payloadSize) << registerInfo(id).name;
    }
    EXPECT_EQ(write(bank, Id::ChunkEnable, 0, chunkGain), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(bank.integer(Id::PayloadSize), 16 * 10 * 10 / 8 + 8 + 3 * 16);
}

TEST_F(FeatureRulesTest, longExposureReducesTheFrameRate)
{
    EXPECT_EQ(writeReal(bank, Id::ExposureTime, 100'000), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(bank.real(Id::AcquisitionFrameRate), 10);
    EXPECT_EQ(writeReal(bank, Id::AcquisitionFrameRate, 11), GenTL::GC_ERR_INVALID_VALUE);
}

TEST_F(FeatureRulesTest, userSetContainsSettingsOnly)
{
    RegisterBank set = bank;
    set.setInteger(Id::Width, 32);
    set.setInteger(Id::TriggerMode, 1, frameStartTrigger);
    set.setInteger(Id::TLParamsLocked, 1);
    set.setText(Id::DeviceUserID, "other");
    applyUserSet(bank, set);
    EXPECT_EQ(bank.integer(Id::Width), 32);
    EXPECT_EQ(bank.integer(Id::TriggerMode, frameStartTrigger), 1);
    EXPECT_EQ(bank.integer(Id::PayloadSize), 32 * 48);
    EXPECT_EQ(bank.integer(Id::TLParamsLocked), 0);
    EXPECT_EQ(bank.text(Id::DeviceUserID), "Name");
    keepOverRestart(bank, set);
    EXPECT_EQ(bank.text(Id::DeviceUserID), "other");
}

TEST(AutomaticControl, onceEndsWhenTheBrightnessIsRight)
{
    RegisterBank bank = powerOnRegisters(smallModel());
    bank.setInteger(Id::ExposureAuto, autoOnce);
    adjustAutomatics(bank, {0.2, {}});
    EXPECT_EQ(bank.real(Id::ExposureTime), 16'000);
    EXPECT_EQ(bank.integer(Id::ExposureAuto), autoOnce);
    adjustAutomatics(bank, {0.4, {}});
    EXPECT_EQ(bank.real(Id::ExposureTime), 16'000);
    EXPECT_EQ(bank.integer(Id::ExposureAuto), autoOff);
}

TEST(AutomaticControl, gainHelpsWhenTheExposureIsAsLongAsTheFrame)
{
    RegisterBank bank = powerOnRegisters(smallModel());
    bank.setInteger(Id::ExposureAuto, 2);
    bank.setInteger(Id::GainAuto, 2);
    for (int image = 0; image < 3; ++image) // 8 ms, 16 ms, 32 ms, 40 ms.
        adjustAutomatics(bank, {0.1, {}});
    EXPECT_EQ(bank.real(Id::ExposureTime), 40'000);
    EXPECT_EQ(bank.integer(Id::GainRaw), 0);
    adjustAutomatics(bank, {0.1, {}});
    EXPECT_EQ(bank.integer(Id::GainRaw), 602);
}

TEST(AutomaticControl, longExposureReducesTheRatesThatAreNotEnabled)
{
    RegisterBank bank = powerOnRegisters(smallModel());
    bank.setInteger(Id::AcquisitionFrameRateEnable, 0);
    bank.setInteger(Id::ExposureAuto, autoOnce);
    for (int image = 0; image < 4; ++image) // 16 ms, 32 ms, 64 ms, 128 ms.
        adjustAutomatics(bank, {0.1, {}});
    EXPECT_EQ(bank.real(Id::ExposureTime), 128'000);
    EXPECT_EQ(bank.real(Id::AcquisitionFrameRate), 1e6 / 128'000);
    EXPECT_EQ(bank.real(Id::AcquisitionLineRate), 1e6 / 128'000);
}

TEST(AutomaticControl, whiteBalanceMakesTheColorsEqual)
{
    RegisterBank bank = powerOnRegisters(smallModel());
    bank.setReal(Id::BalanceRatio, 1, 0);
    bank.setReal(Id::BalanceRatio, 1, 2);
    bank.setInteger(Id::BalanceWhiteAuto, autoOnce);
    adjustAutomatics(bank, {0.3, {0.2, 0.3, 0.6}});
    EXPECT_DOUBLE_EQ(bank.real(Id::BalanceRatio, 0), 1.5);
    EXPECT_DOUBLE_EQ(bank.real(Id::BalanceRatio, 1), 1);
    EXPECT_DOUBLE_EQ(bank.real(Id::BalanceRatio, 2), 0.5);
    adjustAutomatics(bank, {0.3, {0.3, 0.3, 0.3}});
    EXPECT_EQ(bank.integer(Id::BalanceWhiteAuto), autoOff);
}

TEST(AutomaticControl, brightnessOfEveryLayoutIsMeasured)
{
    struct
    {
        std::int64_t format;
        std::vector<std::uint8_t> pixels; // Repeated over the picture; all of one value, about 3/4.
    } const expected[] = {
        {0x01080001, {0xC0}}, // Mono8
        {0x01100003, {0x00, 0x03}}, // Mono10
        {0x010A0046, {0x00, 0x03, 0x0C, 0x30, 0xC0}}, // Mono10p
        {0x010C0047, {0x00, 0x0C, 0xC0}}, // Mono12p
        {0x010C0006, {0xC0, 0x00, 0xC0}}, // Mono12Packed
        {0x01100007, {0x00, 0xC0}}, // Mono16
    };
    for (const auto &[format, pixels] : expected) {
        RegisterBank bank = powerOnRegisters(smallModel());
        ASSERT_EQ(write(bank, Id::PixelFormat, format), GenTL::GC_ERR_SUCCESS);
        std::vector<std::uint8_t> picture;
        while (picture.size() < static_cast<std::size_t>(bank.integer(Id::PayloadSize)))
            picture.insert(picture.end(), pixels.begin(), pixels.end());
        EXPECT_NEAR(measureBrightness(bank, picture.data()).mean, 0.75, 0.005) << std::hex << format;
    }
}
