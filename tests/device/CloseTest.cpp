#include "tests/device/DeviceTest.h"

#include <future>
#include <sys/wait.h>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

class CloseTest : public DeviceTest
{ };

TEST_F(CloseTest, closedDeviceRefusesEverything)
{
    const auto device = opened();
    const auto stream = streaming(*device);
    const auto observer = std::make_shared<DeviceRecorder>();
    ASSERT_TRUE(device->AddObserver(observer));
    EXPECT_TRUE(device->Close());
    EXPECT_EQ(log().back(), "closeDevice");
    EXPECT_TRUE(hosts().empty());
    EXPECT_EQ(observer->calls(), (Lines{"state 3 "}));
    EXPECT_EQ(observer.use_count(), 1);

    std::vector<NodeInfo> nodes;
    std::vector<NodeState> states;
    NodeValue value;
    std::shared_ptr<Stream> second;
    std::shared_ptr<const Image> image;
    EXPECT_EQ(device->GetNodes(nodes).code, CvxErrorClosed);
    EXPECT_EQ(device->ReadStates({"Width"}, states).code, CvxErrorClosed);
    const CvxResult result = device->Read("Width", value);
    EXPECT_EQ(result.code, CvxErrorClosed);
    EXPECT_EQ(result.text, "Orvelle Kx200 (24030117): The camera is closed.");
    EXPECT_EQ(device->Write("Width", std::int64_t(1)).code, CvxErrorClosed);
    EXPECT_EQ(device->Execute("Do").code, CvxErrorClosed);
    EXPECT_EQ(device->StartStream(4, StreamPolicy::EveryImage, second).code, CvxErrorClosed);
    EXPECT_EQ(device->AddObserver(observer).code, CvxErrorClosed);
    EXPECT_EQ(stream->WaitForImage(10s, image).code, CvxErrorClosed);
    EXPECT_TRUE(stream->Stop());
    EXPECT_TRUE(device->Close());
    std::uint32_t reopenCount = 0;
    EXPECT_EQ(device->GetState(reopenCount), DeviceState::Closed);
}

TEST_F(CloseTest, lastReferenceClosesTheDevice)
{
    auto device = opened();
    const auto stream = streaming(*device);
    device = nullptr;
    EXPECT_EQ(log().back(), "closeDevice");
    EXPECT_TRUE(hosts().empty());
    std::shared_ptr<const Image> image;
    EXPECT_EQ(stream->WaitForImage(10s, image).code, CvxErrorClosed);
}

TEST_F(CloseTest, observerMayReleaseTheLastReference)
{
    class Owner : public DeviceRecorder
    {
    public:
        void NodesChanged(const std::vector<std::string> &) override { device = nullptr; }
        std::shared_ptr<Device> device;
    };
    const auto owner = std::make_shared<Owner>();
    owner->device = opened();
    Device &device = *owner->device;
    ASSERT_TRUE(device.AddObserver(owner));
    ASSERT_TRUE(device.WriteInteger("Width", 100));
    EXPECT_TRUE(owner->waitFor("state 3"));
    EXPECT_TRUE(hosts().empty());
}

TEST_F(CloseTest, hostThatDoesNotCloseIsKilled)
{
    options.closeTimeout = 300ms;
    setScript("closeDevice hang\n");
    EXPECT_TRUE(opened()->Close());
    EXPECT_TRUE(hosts().empty());
}

TEST_F(CloseTest, closeEndsAWaitingCall)
{
    options.closeTimeout = 300ms;
    const auto device = opened();
    setScript("readValue hang\n");
    auto reading = std::async(std::launch::async, [&] {
        NodeValue value;
        return device->Read("Width", value).code;
    });
    EXPECT_TRUE(waitUntil([this] { return count("readValue") == 1; }));
    auto waiting = std::async(std::launch::async, [&] {
        NodeValue value;
        return device->Read("Gain", value).code;
    });
    EXPECT_TRUE(device->Close());
    EXPECT_EQ(reading.get(), CvxErrorClosed);
    EXPECT_EQ(waiting.get(), CvxErrorClosed);
    EXPECT_TRUE(hosts().empty());
}

TEST_F(CloseTest, lostDeviceIsClosed)
{
    const auto device = opened();
    setScript("openDevice hang\n");
    killHost();
    EXPECT_TRUE(waitUntil([this] { return count("openDevice") == 2; })) << "the camera is being reopened";
    options.closeTimeout = 300ms;
    EXPECT_TRUE(device->Close());
    EXPECT_TRUE(hosts().empty());
}

TEST_F(CloseTest, severalThreadsMayCloseTheDevice)
{
    const auto device = opened();
    auto other = std::async(std::launch::async, [&] { return device->Close().code; });
    EXPECT_TRUE(device->Close());
    EXPECT_EQ(other.get(), CvxErrorSuccess);
}

TEST_F(CloseTest, forkedChildLeavesTheDeviceAlone)
{
    auto device = opened();
    auto stream = streaming(*device);
    const pid_t child = fork();
    if (child == 0) {
        stream = nullptr;
        device = nullptr;
        _exit(7);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_TRUE(device->WriteInteger("Width", 100));
    EXPECT_EQ(count("stopStream"), 0U);
}

TEST_F(CloseTest, nothingIsLeftAfterManyRounds)
{
    const auto first = opened(); // Allocates what the library keeps.
    const std::size_t descriptors = openDescriptors(), threads = threadCount();
    for (int round = 0; round < 60; ++round) {
        std::shared_ptr<Device> device;
        ASSERT_TRUE(open(device, "other"));
        ASSERT_TRUE(device->AddObserver(std::make_shared<DeviceRecorder>()));
        const auto stream = streaming(*device);
        std::shared_ptr<const Image> image;
        EXPECT_EQ(stream->WaitForImage(0ms, image).code, CvxErrorTimeout);
        if (round % 2 == 0) {
            EXPECT_TRUE(stream->Stop());
        }
    }
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_TRUE(waitUntil([&] { return threadCount() == threads; }));
    EXPECT_EQ(streamMappings(), 0U);
    EXPECT_EQ(hosts().size(), 1U);
}
