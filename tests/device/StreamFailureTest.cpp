#include "tests/device/DeviceTest.h"

#include <future>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

class StreamFailureTest : public DeviceTest
{
protected:
    CvxError wait(Stream &stream)
    {
        std::shared_ptr<const Image> image;
        const CvxError error = stream.WaitForImage(20s, image).code;
        frame = image ? image->GetInfo().frameId : 0;
        return error;
    }

    std::uint64_t frame = 0; // Frame ID of the last image that wait() got; 0 if it got none.
    std::shared_ptr<Device> device = opened();
};

} // namespace

TEST_F(StreamFailureTest, streamContinuesAfterALoss)
{
    const auto stream = streaming(*device, 5, StreamPolicy::EveryImage);
    ASSERT_TRUE(act(*device, "deliver 3"));
    std::shared_ptr<const Image> held;
    ASSERT_TRUE(stream->WaitForImage(20s, held));
    killHost();
    EXPECT_TRUE(waitUntil([this] { return count("startStream every") == 2; }));
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
    EXPECT_EQ(wait(*stream), CvxErrorDeviceLost) << "the first call after the loss";
    EXPECT_EQ(count("prepareStream 5"), 2U);
    ASSERT_TRUE(act(*device, "deliver 1"));
    EXPECT_EQ(wait(*stream), CvxErrorSuccess);
    EXPECT_EQ(frame, 1U) << "the images of the old host are discarded";
    EXPECT_EQ(held->GetData()[0], 1) << "an old image stays valid";

    StreamStatistics statistics;
    ASSERT_TRUE(stream->GetStatistics(statistics));
    EXPECT_EQ(statistics.delivered, 4U);
    EXPECT_EQ(statistics.bytes, 4U * 64);
    EXPECT_EQ(statistics.reopenCount, 1U);
    EXPECT_EQ(streamMappings(), 4U);
    held = nullptr;
    EXPECT_EQ(streamMappings(), 2U);
}

TEST_F(StreamFailureTest, lossWakesWaitingThreads)
{
    const auto stream = streaming(*device);
    std::vector<std::future<CvxError>> waiting;
    for (int i = 0; i < 3; ++i) {
        waiting.push_back(std::async(std::launch::async, [&] {
            std::shared_ptr<const Image> image;
            return stream->WaitForImage(100s, image).code;
        }));
    }
    setScript("openDevice fail 2 The camera is gone.\n");
    killHost();
    bool isAnyLost = false;
    EXPECT_TRUE(waitForState(*device, DeviceState::Lost));
    EXPECT_TRUE(waitUntil([this] { return count("openDevice") > 2; }));
    setScript("");
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
    ASSERT_TRUE(act(*device, "deliver 3"));
    // A thread that began to wait after another one had been woken gets an image.
    for (auto &result : waiting) {
        const CvxError error = result.get();
        EXPECT_TRUE(error == CvxErrorDeviceLost || error == CvxErrorSuccess);
        isAnyLost = isAnyLost || error == CvxErrorDeviceLost;
    }
    EXPECT_TRUE(isAnyLost);
}

TEST_F(StreamFailureTest, waitingIsPossibleWhileTheDeviceIsLost)
{
    const auto stream = streaming(*device);
    setScript("openDevice fail 2 The camera is gone.\n");
    killHost();
    EXPECT_EQ(wait(*stream), CvxErrorDeviceLost);
    std::shared_ptr<const Image> image;
    EXPECT_EQ(stream->WaitForImage(20ms, image).code, CvxErrorTimeout);
    auto waiting = std::async(std::launch::async, [&] { return wait(*stream); });
    setScript("");
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
    ASSERT_TRUE(act(*device, "deliver 1"));
    EXPECT_EQ(waiting.get(), CvxErrorSuccess);
}

TEST_F(StreamFailureTest, streamThatCannotBeRestartedIsTriedAgain)
{
    const auto observer = std::make_shared<DeviceRecorder>();
    ASSERT_TRUE(device->AddObserver(observer));
    const auto stream = streaming(*device);
    setScript("startStream fail 0 The camera refuses to start.\n");
    killHost();
    EXPECT_TRUE(observer->waitFor("state 1 Orvelle Kx200 (24030117): The camera refuses to start."));
    setScript("prepareStream die\n");
    EXPECT_TRUE(waitUntil([this] { return log().back().find("prepareStream") == 0; }));
    setScript("");
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
    EXPECT_EQ(wait(*stream), CvxErrorDeviceLost);
    ASSERT_TRUE(act(*device, "deliver 1"));
    EXPECT_EQ(wait(*stream), CvxErrorSuccess);
    StreamStatistics statistics;
    ASSERT_TRUE(stream->GetStatistics(statistics));
    EXPECT_EQ(statistics.reopenCount, 1U);
}

TEST_F(StreamFailureTest, streamIsStoppedWhileTheDeviceIsLost)
{
    const auto stream = streaming(*device);
    setScript("openDevice fail 2 The camera is gone.\n");
    killHost();
    EXPECT_TRUE(waitUntil([this] { return count("openDevice") >= 2; }));
    EXPECT_TRUE(stream->Stop());
    EXPECT_EQ(wait(*stream), CvxErrorClosed);
    setScript("");
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
    EXPECT_EQ(count("startStream"), 1U);
}

TEST_F(StreamFailureTest, damagedMemoryEndsTheHost)
{
    const auto stream = streaming(*device);
    const char *const damages[] = {
        "push 4", "push 0xffffffff", "damageCounter", "deliverLong", "deliverManyChunks", "deliverWildChunk"};
    std::uint32_t expectedCount = 0;
    for (const char *damage : damages) {
        ASSERT_TRUE(act(*device, damage)) << damage;
        EXPECT_EQ(wait(*stream), CvxErrorDeviceLost) << damage;
        std::uint32_t reopenCount = 0;
        ++expectedCount;
        EXPECT_TRUE(waitUntil([&] {
            return device->GetState(reopenCount) == DeviceState::Open && reopenCount == expectedCount;
        }));
        ASSERT_TRUE(act(*device, "deliver 1"));
        EXPECT_EQ(wait(*stream), CvxErrorSuccess) << damage;
    }
}

TEST_F(StreamFailureTest, bufferThatTheProgramHoldsMayNotComeAgain)
{
    const auto stream = streaming(*device);
    ASSERT_TRUE(act(*device, "deliver 1"));
    std::shared_ptr<const Image> held;
    ASSERT_TRUE(stream->WaitForImage(20s, held));
    ASSERT_TRUE(act(*device, "push 0"));
    EXPECT_EQ(wait(*stream), CvxErrorDeviceLost);
    EXPECT_EQ(held->GetData()[0], 1);
}

TEST_F(StreamFailureTest, stopThatHangsEndsTheHost)
{
    device = nullptr;
    devices = nullptr;
    options.stopTimeout = 100ms;
    device = opened();
    const auto stream = streaming(*device);
    setScript("stopStream hang\n");
    EXPECT_EQ(stream->Stop().code, CvxErrorTimeout);
    EXPECT_EQ(wait(*stream), CvxErrorClosed);
    std::uint32_t reopenCount = 0;
    EXPECT_TRUE(
        waitUntil([&] { return device->GetState(reopenCount) == DeviceState::Open && reopenCount == 1; }));
    EXPECT_EQ(count("startStream"), 1U);
    setScript("");
    EXPECT_NE(streaming(*device), nullptr);
}

TEST_F(StreamFailureTest, stopEndsACallThatHangs)
{
    device = nullptr;
    devices = nullptr;
    options.stopTimeout = 100ms;
    device = opened();
    const auto stream = streaming(*device);
    setScript("readValue hang\n");
    auto reading = std::async(std::launch::async, [this] {
        NodeValue value;
        return device->Read("Width", value).code;
    });
    EXPECT_TRUE(waitUntil([this] { return count("readValue") == 1; }));
    EXPECT_EQ(stream->Stop().code, CvxErrorTimeout);
    EXPECT_EQ(reading.get(), CvxErrorDeviceLost);
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
}
