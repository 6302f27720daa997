#include "tests/device/DeviceTest.h"

#include <functional>
#include <future>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

struct Step
{
    const char *request; ///< During this request, the host fails.
    std::function<CvxResult(Device &device)> call;
};

CvxResult startStream(Device &device)
{
    std::shared_ptr<Stream> stream;
    return device.StartStream(4, StreamPolicy::EveryImage, stream);
}

const std::vector<Step> steps{{"readValue",
                                  [](Device &device) {
                                      NodeValue value;
                                      return device.Read("Width", value);
                                  }},
    {"readStates",
        [](Device &device) {
            std::vector<NodeState> states;
            return device.ReadStates({"Width"}, states);
        }},
    {"writeValue", [](Device &device) { return device.Write("Width", std::int64_t(5)); }},
    {"prepareStream", startStream}, {"startStream", startStream}};

class HostFailureTest : public DeviceTest
{
protected:
    /// Lets the host fail in this way during the step. Expects that the device is opened again.
    void fail(const std::string &failure, CvxError expected)
    {
        const auto device = opened();
        std::uint32_t reopenCount = 0;
        for (const Step &step : steps) {
            setScript(std::string(step.request) + ' ' + failure + '\n');
            const CvxResult result = step.call(*device);
            setScript("");
            EXPECT_EQ(result.code, expected) << step.request << ' ' << failure << ' ' << result.text;
            const std::uint32_t before = reopenCount;
            EXPECT_TRUE(waitUntil(
                [&] { return device->GetState(reopenCount) == DeviceState::Open && reopenCount > before; }));
            EXPECT_EQ(streamMappings(), 0U);
        }
        EXPECT_EQ(reopenCount, steps.size());
    }
};

} // namespace

TEST_F(HostFailureTest, killedHostLosesTheDevice)
{
    fail("die", CvxErrorDeviceLost);
}

TEST_F(HostFailureTest, callDuringWhichTheHostDiesTellsTheReason)
{
    const auto device = opened();
    setScript("readValue die\n");
    NodeValue value;
    EXPECT_EQ(device->Read("Width", value).text,
        "Orvelle Kx200 (24030117): The process of the camera was ended by SIGKILL (Killed). The camera is "
        "being opened again.");
}

TEST_F(HostFailureTest, nonsenseLosesTheDevice)
{
    for (const char *nonsense : {"garbage", "wrongId", "wrongKind"})
        fail(nonsense, CvxErrorDeviceLost);
}

TEST_F(HostFailureTest, endlessLineLosesTheDevice)
{
    const auto device = opened();
    setScript("readValue endless\n");
    NodeValue value;
    EXPECT_EQ(device->Read("Width", value).code, CvxErrorDeviceLost);
}

TEST_F(HostFailureTest, lostCameraInAReplyLosesTheDevice)
{
    fail("fail 8 The cable was pulled.", CvxErrorDeviceLost);
}

TEST_F(HostFailureTest, hangingHostIsKilled)
{
    options.requestTimeout = options.startTimeout = 50ms;
    const auto device = opened();
    for (const Step &step : steps) {
        const auto stuck = hosts();
        setScript(std::string(step.request) + " hang\n");
        const CvxResult result = step.call(*device);
        setScript("");
        EXPECT_EQ(result.code, CvxErrorTimeout) << step.request;
        EXPECT_EQ(result.text, "Orvelle Kx200 (24030117): The camera has not answered in time.");
        EXPECT_TRUE(waitForState(*device, DeviceState::Open));
        EXPECT_NE(hosts(), stuck);
    }
}

TEST_F(HostFailureTest, hostThatDoesNotReadIsKilled)
{
    options.requestTimeout = 100ms;
    const auto device = opened();
    const std::vector<std::uint8_t> large(4U << 20);
    setScript("readValue hang\n");
    NodeValue value;
    EXPECT_EQ(device->Read("Width", value).code, CvxErrorTimeout);
    setScript("");
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
    for (const pid_t host : hosts())
        ::kill(host, SIGSTOP);
    EXPECT_EQ(device->WriteRegister("Table", large).code, CvxErrorTimeout);
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
}

TEST_F(HostFailureTest, idleHostIsWatched)
{
    const auto observer = std::make_shared<DeviceRecorder>();
    const auto device = opened();
    ASSERT_TRUE(device->AddObserver(observer));
    killHost();
    EXPECT_TRUE(observer->waitFor(
        "state 1 Orvelle Kx200 (24030117): The process of the camera was ended by SIGKILL (Killed)."));
    EXPECT_TRUE(observer->waitFor("state 0"));
    static_cast<void>(act(*device, "leaveChild")); // The child keeps the socket open.
    std::uint32_t reopenCount = 0;
    EXPECT_TRUE(
        waitUntil([&] { return device->GetState(reopenCount) == DeviceState::Open && reopenCount == 2; }));
    EXPECT_EQ(hosts().size(), 1U);
}

TEST_F(HostFailureTest, noticesOfTheHostAreProcessed)
{
    const auto observer = std::make_shared<DeviceRecorder>();
    const auto device = opened();
    ASSERT_TRUE(device->AddObserver(observer));
    static_cast<void>(act(*device, "lose"));
    EXPECT_TRUE(observer->waitFor("state 1 Orvelle Kx200 (24030117): The cable was pulled."));
    EXPECT_TRUE(waitForState(*device, DeviceState::Open));
}

TEST_F(HostFailureTest, callsFailAtOnceWhileTheDeviceIsLost)
{
    const auto device = opened();
    setScript("openDevice hang\n");
    killHost();
    EXPECT_TRUE(waitUntil([this] { return count("openDevice") == 2; }));
    NodeValue value;
    const CvxResult result = device->Read("Width", value);
    EXPECT_EQ(result.code, CvxErrorDeviceLost);
    EXPECT_EQ(result.text,
        "Orvelle Kx200 (24030117): The process of the camera was ended by SIGKILL (Killed). The camera is "
        "being opened again.");
    std::vector<NodeInfo> nodes;
    EXPECT_TRUE(device->GetNodes(nodes));
    std::uint32_t reopenCount = 0;
    EXPECT_EQ(device->GetState(reopenCount), DeviceState::Reopening);
    killHost();
}

TEST_F(HostFailureTest, camerasFailIndependently)
{
    const auto device = opened();
    std::shared_ptr<Device> other;
    ASSERT_TRUE(open(other, "other"));
    setScript("readValue hang\n", "other");
    auto hanging = std::async(std::launch::async, [&] {
        NodeValue value;
        return other->Read("Width", value).code;
    });
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(device->WriteInteger("Width", i));
    EXPECT_EQ(hanging.wait_for(0s), std::future_status::timeout);
    killHost();
    EXPECT_EQ(hanging.get(), CvxErrorDeviceLost);
}
