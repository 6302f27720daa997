// These tests share the registers of a camera between processes.

#include "sdk/simulator/RegisterFile.h"
#include "sdk/producer/OpenCamera.h"
#include "tests/simulator/ChildProcess.h"
#include "tests/simulator/TestCamera.h"

#include <gtest/gtest.h>

namespace {

using Id = RegisterId;
constexpr auto watching = GenTL::DEVICE_ACCESS_READONLY;
constexpr auto controlling = GenTL::DEVICE_ACCESS_CONTROL;

/// Opens the camera in a child process, where it stays open, and changes the exposure time.
std::string setExposureForever(const std::string &path, double exposure)
{
    static RegisterFile file(path, controlling, smallModel());
    file.update([exposure](RegisterBank &bank) { bank.setReal(Id::ExposureTime, exposure); });
    return {};
}

GenTL::GC_ERROR errorOf(const std::string &path, const CameraModel &model)
{
    try {
        const RegisterFile file(path, watching, model);
        return GenTL::GC_ERR_SUCCESS;
    } catch (const GenTlError &error) {
        return error.code();
    }
}

} // namespace

class RegisterFileTest : public testing::Test
{
protected:
    TestFolder folder;
    const std::string path = folder.file("camera");
    const CameraModel model = smallModel();
};

TEST_F(RegisterFileTest, processesSeeTheSameRegisters)
{
    RegisterFile file(path, watching, model);
    EXPECT_EQ(file.load().real(Id::ExposureTime), model.exposureTime);
    const std::uint32_t changes = file.changes();
    const ChildProcess child([this] { return setExposureForever(path, 1234); });
    EXPECT_EQ(file.load().real(Id::ExposureTime), 1234);
    EXPECT_NE(file.changes(), changes);
}

TEST_F(RegisterFileTest, registersEndWithTheLastUser)
{
    ChildProcess child([this] { return setExposureForever(path, 1234); });
    child.kill(); // The process cannot remove the file.
    EXPECT_EQ(RegisterFile(path, controlling, model).load().real(Id::ExposureTime), model.exposureTime);
    EXPECT_TRUE(folder.isEmpty());
}

TEST_F(RegisterFileTest, pulseOfAnotherProcessEndsTheWait)
{
    RegisterFile file(path, controlling, model);
    const std::uint32_t seen = file.wakeCounter().value();
    const ChildProcess child([this] {
        RegisterFile(path, watching, smallModel()).addPulse(lineInput);
        return std::string();
    });
    while (file.pulses(lineInput) == 0)
        file.wakeCounter().wait(seen, monotonicNow() + 20'000'000'000);
    EXPECT_EQ(file.pulses(lineInput), 1U);
}

TEST_F(RegisterFileTest, anotherModelWithTheSameIdCannotUseTheRegisters)
{
    RegisterFile file(path, controlling, model);
    SensorKeys keys;
    keys.width = 128;
    EXPECT_EQ(errorOf(path, smallModel(keys)), GenTL::GC_ERR_ACCESS_DENIED);
    EXPECT_EQ(errorOf(path, model), GenTL::GC_ERR_SUCCESS);
}

TEST_F(RegisterFileTest, cameraThatRestartsCannotBeOpened)
{
    RegisterBank registers = powerOnRegisters(model);
    registers.setText(Id::DeviceUserID, "New name");
    {
        RegisterFile file(path, controlling, model);
        EXPECT_FALSE(file.hasRestarted());
        file.restart(registers);
        EXPECT_TRUE(file.hasRestarted());
    }
    EXPECT_EQ(errorOf(path, model), GenTL::GC_ERR_IO);
    while (errorOf(path, model) == GenTL::GC_ERR_IO) // The test has a time limit.
        WakeCounter().wait(0, monotonicNow() + 10'000'000);
    EXPECT_TRUE(folder.isEmpty()); // The file was kept only for the restart.
}

TEST_F(RegisterFileTest, restartKeepsWhatTheCameraStores)
{
    RegisterFile file(path, controlling, model);
    RegisterBank registers = powerOnRegisters(model);
    registers.setText(Id::DeviceUserID, "New name");
    file.restart(registers);
    file.close();
    for (;;) {
        try {
            const RegisterFile reopened(path, controlling, model);
            EXPECT_EQ(reopened.load().text(Id::DeviceUserID), "New name");
            EXPECT_FALSE(reopened.hasRestarted());
            return;
        } catch (const GenTlError &) { // Still restarting.
            WakeCounter().wait(0, monotonicNow() + 10'000'000);
        }
    }
}
