// These tests open simulated cameras, lose them and find them again.

#include "sdk/simulator/EnumerationValues.h"
#include "tests/simulator/TestCamera.h"

#include <gtest/gtest.h>

namespace {

using Id = RegisterId;

GenTL::GC_ERROR readError(OpenCamera &camera, std::uint64_t address, std::size_t size)
{
    std::vector<std::uint8_t> data(size);
    try {
        camera.read(address, data.data(), size);
        return GenTL::GC_ERR_SUCCESS;
    } catch (const GenTlError &error) {
        return error.code();
    }
}

/// Opens the camera as soon as it answers again.
std::unique_ptr<TestCamera> reopen(const TestFolder &folder)
{
    for (;;) {
        try {
            return std::make_unique<TestCamera>(folder, smallModel());
        } catch (const GenTlError &error) {
            EXPECT_EQ(error.code(), GenTL::GC_ERR_IO) << error.what();
        }
        std::this_thread::yield(); // The test has a time limit.
    }
}

} // namespace

class SimulatedCameraTest : public testing::Test
{
protected:
    TestFolder folder;
    std::unique_ptr<TestCamera> camera = std::make_unique<TestCamera>(folder, smallModel());
};

TEST_F(SimulatedCameraTest, onlyRegistersAndDescriptionHaveAnAddress)
{
    OpenCamera &port = camera->camera();
    EXPECT_EQ(readError(port, registersAddress, registersSize), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(readError(port, registersAddress - 1, 1), GenTL::GC_ERR_INVALID_ADDRESS);
    EXPECT_EQ(readError(port, registersAddress, registersSize + 1), GenTL::GC_ERR_INVALID_ADDRESS);
    EXPECT_EQ(readError(port, ~std::uint64_t{0}, 8), GenTL::GC_ERR_INVALID_ADDRESS);
    const std::string url = port.descriptionUrls().at(0);
    const std::size_t size = std::stoul(url.substr(url.rfind(';') + 1), nullptr, 16);
    EXPECT_EQ(readError(port, descriptionAddress, size), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(readError(port, descriptionAddress, size + 1), GenTL::GC_ERR_INVALID_ADDRESS);
    EXPECT_THROW(port.write(descriptionAddress, "x", 1), GenTlError);
}

TEST_F(SimulatedCameraTest, watcherSeesChangesButCannotWrite)
{
    TestCamera watcher(folder, smallModel(), GenTL::DEVICE_ACCESS_READONLY);
    EXPECT_EQ(watcher.camera().accessStatus(), GenTL::DEVICE_ACCESS_STATUS_OPEN_READONLY);
    EXPECT_EQ(camera->camera().accessStatus(), GenTL::DEVICE_ACCESS_STATUS_OPEN_READWRITE);
    EXPECT_EQ(camera->setReal(Id::ExposureTime, 123), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(watcher.real(Id::ExposureTime), 123);
    EXPECT_EQ(watcher.setReal(Id::ExposureTime, 456), GenTL::GC_ERR_ACCESS_DENIED);
}

TEST_F(SimulatedCameraTest, severalRegistersCanBeWrittenAtOnce)
{
    RegisterBank bank;
    bank.setInteger(Id::Width, 32);
    bank.setInteger(Id::Height, 20);
    const RegisterInfo &first = registerInfo(Id::Width);
    const RegisterInfo &last = registerInfo(Id::Height);
    ASSERT_EQ(first.end(), last.offset);
    camera->camera().write(
        registersAddress + first.offset, bank.bytes() + first.offset, last.end() - first.offset);
    EXPECT_EQ(camera->integer(Id::Width), 32);
    EXPECT_EQ(camera->integer(Id::Height), 20);
}

TEST_F(SimulatedCameraTest, nextControllerFindsNoRunningAcquisition)
{
    TestCamera watcher(folder, smallModel(), GenTL::DEVICE_ACCESS_READONLY); // Keeps the registers.
    camera->execute(Id::AcquisitionStart);
    camera->set(Id::TLParamsLocked, 1);
    camera->set(Id::ReverseX, 1);
    camera.reset();
    EXPECT_EQ(watcher.integer(Id::AcquisitionActive), 0);
    EXPECT_EQ(watcher.integer(Id::TLParamsLocked), 0);
    EXPECT_EQ(watcher.integer(Id::ReverseX), 1);
}

TEST_F(SimulatedCameraTest, clockCanBeLatchedAndReset)
{
    camera->execute(Id::TimestampReset);
    const std::int64_t before = camera->integer(Id::Timestamp);
    camera->execute(Id::TimestampLatch);
    const std::int64_t latched = camera->integer(Id::TimestampLatchValue);
    EXPECT_GE(latched, before);
    EXPECT_EQ(camera->integer(Id::TimestampLatchValue), latched);
    EXPECT_GT(camera->integer(Id::Timestamp), latched);
    EXPECT_LT(latched, 100'000'000'000); // The clock has started anew.
}

TEST_F(SimulatedCameraTest, userSetsAreSavedAndLoaded)
{
    EXPECT_EQ(camera->execute(Id::UserSetSave), GenTL::GC_ERR_ACCESS_DENIED); // The default set.
    camera->set(Id::Width, 32);
    camera->set(Id::UserSetSelector, 1);
    EXPECT_EQ(camera->execute(Id::UserSetSave), GenTL::GC_ERR_SUCCESS);
    camera->set(Id::UserSetSelector, defaultUserSet);
    EXPECT_EQ(camera->execute(Id::UserSetLoad), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(camera->integer(Id::Width), 64);
    camera->set(Id::UserSetSelector, 1);
    EXPECT_EQ(camera->execute(Id::UserSetLoad), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(camera->integer(Id::Width), 32);
}

TEST_F(SimulatedCameraTest, disconnectedCameraIsLostAndCanBeOpenedAgain)
{
    TestQueue queue(2, 64 * 48);
    camera->set(Id::AcquisitionFrameRateEnable, 0);
    camera->images().start(queue);
    camera->execute(Id::AcquisitionStart);
    queue.next(camera->images());
    camera->disconnect();
    EXPECT_TRUE(camera->waitForLoss());
    EXPECT_EQ(readError(camera->camera(), registersAddress, 4), GenTL::GC_ERR_IO);
    EXPECT_EQ(camera->set(Id::Width, 32), GenTL::GC_ERR_IO);
    EXPECT_EQ(camera->camera().accessStatus(), GenTL::DEVICE_ACCESS_STATUS_NOACCESS);
    TestCamera again(folder, smallModel()); // Even before the consumer has closed the lost camera.
    EXPECT_EQ(again.integer(Id::AcquisitionFrameRateEnable), 1); // It had no power meanwhile.
    camera->images().stop(false);
}

TEST_F(SimulatedCameraTest, resetIsALossForEveryUser)
{
    TestCamera watcher(folder, smallModel(), GenTL::DEVICE_ACCESS_READONLY);
    camera->set(Id::ReverseX, 1);
    camera->set(Id::UserSetSelector, 2);
    camera->execute(Id::UserSetSave);
    camera->set(Id::UserSetDefault, 2);
    camera->set(Id::Width, 32);
    EXPECT_EQ(camera->execute(Id::DeviceReset), GenTL::GC_ERR_SUCCESS);
    EXPECT_EQ(readError(camera->camera(), registersAddress, 4), GenTL::GC_ERR_IO);
    EXPECT_EQ(readError(watcher.camera(), registersAddress, 4), GenTL::GC_ERR_IO);
    EXPECT_TRUE(camera->waitForLoss());
    EXPECT_TRUE(watcher.waitForLoss());
    const std::unique_ptr<TestCamera> again = reopen(folder);
    EXPECT_EQ(again->integer(Id::ReverseX), 1); // The user set with which the camera starts.
    EXPECT_EQ(again->integer(Id::Width), 64);
}

TEST_F(SimulatedCameraTest, encoderCountsPulses)
{
    SensorKeys keys;
    keys.isLineScan = true;
    const TestFolder other;
    TestCamera lineScan(other, smallModel(keys));
    lineScan.execute(Id::EncoderReset);
    while (lineScan.integer(Id::EncoderValue) == 0) // The test has a time limit.
        std::this_thread::yield();
    lineScan.set(Id::EncoderSourceA, 0); // Not connected.
    EXPECT_EQ(lineScan.integer(Id::EncoderValue), 0);
}
