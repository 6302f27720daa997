// Tests camera hosts whose camera cannot be opened or is lost, whose producer hangs, and whose library ends.

#include "tests/camerahost/QuirkSession.h"
#include "tests/sdk/support/Waiting.h"

#include <future>
#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

/// Returns true if a new host can control the camera, so no process holds it any more.
bool canBeOpened(QuirkProducer &producer)
{
    producer.setScript("");
    HostClient host(producer.ctiPath());
    return host.open() && host.close();
}

/// The steps of a session. Each one returns false if it fails.
const struct
{
    const char *name;
    bool (*perform)(HostClient &);
} steps[] = {
    {"open", [](HostClient &host) { return host.open(); }},
    {"write", [](HostClient &host) { return host.write("Gain", std::int64_t(5)); }},
    {"prepare", [](HostClient &host) { return host.prepareStream(); }},
    {"start", [](HostClient &host) { return host.startStream(); }},
    {"image", [](HostClient &host) { return host.nextImage().has_value(); }},
    {"stop", [](HostClient &host) { return host.stopStream(); }},
};

/// A quirk that makes opening fail.
struct OpenRow : Quirk
{
    DeviceFailure failure = DeviceFailure::Device;
    const char *text = "the producer's own text";
};

} // namespace

class FailedOpen : public testing::TestWithParam<OpenRow>
{ };

TEST_P(FailedOpen, isReported)
{
    QuirkProducer producer;
    install(producer, GetParam());
    HostClient host(producer.ctiPath());
    EXPECT_FALSE(host.open());
    EXPECT_EQ(host.failure.failure, GetParam().failure) << host.failure.text;
    EXPECT_NE(host.failure.text.find(GetParam().text), std::string::npos) << host.failure.text;
    EXPECT_EQ(host.waitForEnd(), 0) << "the host ends by itself";
}

const OpenRow openRows[] = {
    {{"inUse", "IFOpenDevice error -1005\n"}, DeviceFailure::InUse},
    {{"unknown", "IFOpenDevice error -1007\n"}, DeviceFailure::NotFound},
    {{"unplugged", "gone A1\n"}, DeviceFailure::NotFound},
    {{"accessNotOffered", "IFOpenDevice error -1003\n"}, DeviceFailure::NotAvailable},
    {{"openFails", "IFOpenDevice error -1001\n"}},
    {{"portFails", "DevGetPort error -1001\n"}},
    {{"cameraDoesNotAnswer", "GCReadPort error -1010\n"}},
    {{"noDeviceFunctions", "", {"IFOpenDevice", "DevGetPort"}}, DeviceFailure::Device,
        "IFOpenDevice, DevGetPort"},
    {{"initFails", "GCInitLib error -1001\n"}},
    {{"systemFails", "TLOpen error -1001\n"}},
    {{"interfaceFails", "TLOpenInterface error -1001\n"}},
};
INSTANTIATE_TEST_SUITE_P(, FailedOpen, testing::ValuesIn(openRows), nameOf);

TEST(FailureHost, cameraIsClosedWhenTheLibraryEnds)
{
    for (std::size_t count = 1; count <= std::size(steps); ++count) {
        SCOPED_TRACE(steps[count - 1].name);
        QuirkProducer producer;
        HostClient host(producer.ctiPath());
        for (std::size_t i = 0; i < count; ++i)
            ASSERT_TRUE(steps[i].perform(host)) << steps[i].name << ": " << host.failure.text;
        host.disconnect();
        EXPECT_TRUE(host.waitForEnd());
        EXPECT_EQ(producer.count("closed A1"), 1U);
        EXPECT_EQ(producer.count("violation"), 0U) << testing::PrintToString(producer.log());
    }
}

TEST(FailureHost, killedHostLeavesNothingBehind)
{
    for (std::size_t count = 1; count <= std::size(steps); ++count) {
        SCOPED_TRACE(steps[count - 1].name);
        QuirkProducer producer;
        HostClient host(producer.ctiPath());
        for (std::size_t i = 0; i < count; ++i)
            ASSERT_TRUE(steps[i].perform(host)) << steps[i].name << ": " << host.failure.text;
        host.kill();
        EXPECT_TRUE(host.waitForEnd());
        EXPECT_TRUE(canBeOpened(producer));
    }
}

class HangingCall : public testing::TestWithParam<const char *>
{ };

/// Uses a camera until a call hangs, then ends the connection and waits for the end of the host. Returns true
/// if the device was closed.
bool isClosedAfterAHang(const std::string &function)
{
    QuirkProducer producer(function + " hang\n");
    HostClient host(producer.ctiPath());
    auto session = std::async(std::launch::async, [&] {
        for (const auto &step : steps) {
            if (!step.perform(host))
                return;
        }
        host.close();
    });
    EXPECT_TRUE(waitUntil([&] { return producer.count("hang in " + function) > 0; }));
    host.disconnect();
    session.wait();
    EXPECT_TRUE(host.waitForEnd());
    const bool wasOpen = producer.count("DevGetPort") > 0 && function != "DevClose";
    const bool isClosed = producer.count("closed A1") == 1;
    EXPECT_TRUE(canBeOpened(producer));
    return isClosed || !wasOpen;
}

TEST_P(HangingCall, hostClosesTheDeviceAndEnds)
{
    // The host ends after 900 ms at the latest, so on a busy machine it may not get that far every time.
    bool isClosed = false;
    for (int attempt = 0; attempt < 5 && !isClosed; ++attempt)
        isClosed = isClosedAfterAHang(GetParam());
    EXPECT_TRUE(isClosed);
}

const char *const calls[] = {"GCInitLib", "TLOpen", "TLOpenInterface", "IFOpenDevice", "DevGetPort",
    "GCReadPort", "GCWritePort", "DevGetNumDataStreams", "DevGetDataStreamID", "DevOpenDataStream",
    "DSGetInfo", "DSAnnounceBuffer", "DSQueueBuffer", "GCRegisterEvent", "DSStartAcquisition", "EventGetData",
    "DSGetBufferInfo", "DSStopAcquisition", "GCUnregisterEvent", "DSFlushQueue", "DSRevokeBuffer", "DSClose",
    "DevClose", "IFClose", "TLClose", "GCCloseLib"};
INSTANTIATE_TEST_SUITE_P(, HangingCall, testing::ValuesIn(calls), [](const auto &row) { return row.param; });

TEST(FailureHost, cameraHasOneControllerAndManyWatchers)
{
    QuirkProducer producer;
    HostClient controller(producer.ctiPath());
    HostClient second(producer.ctiPath());
    HostClient watcher(producer.ctiPath());
    HostClient exclusive(producer.ctiPath());
    ASSERT_TRUE(controller.open()) << controller.failure.text;
    EXPECT_FALSE(second.open());
    EXPECT_EQ(second.failure.failure, DeviceFailure::InUse);
    ASSERT_TRUE(watcher.open(CvxAccessWatch)) << watcher.failure.text;
    EXPECT_FALSE(exclusive.open(CvxAccessExclusive));
    EXPECT_EQ(exclusive.failure.failure, DeviceFailure::InUse);

    EXPECT_EQ(watcher.read("Gain"), NodeValue(std::int64_t(1)));
    EXPECT_FALSE(watcher.write("Gain", std::int64_t(9)));
    EXPECT_EQ(watcher.failure.failure, DeviceFailure::NotWritable) << watcher.failure.text;
    EXPECT_TRUE(watcher.prepareStream() && watcher.startStream()) << watcher.failure.text;
    EXPECT_TRUE(controller.prepareStream() && controller.startStream() && controller.nextImage());
    EXPECT_TRUE(watcher.close());
    EXPECT_TRUE(controller.close());
    EXPECT_EQ(producer.count("violation"), 0U) << testing::PrintToString(producer.log());
}

TEST(FailureHost, twoCamerasStreamAtTheSameTime)
{
    QuirkProducer producer("cameras A1 A2\n");
    HostClient first(producer.ctiPath());
    HostClient second(producer.ctiPath());
    ASSERT_TRUE(first.open(CvxAccessControl, "A1") && second.open(CvxAccessControl, "A2"));
    for (HostClient *host : {&first, &second})
        ASSERT_TRUE(host->prepareStream() && host->startStream());
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(first.nextImage() && second.nextImage());
    producer.setScript("cameras A1 A2\ngone A2\n");
    EXPECT_TRUE(second.waitForLoss());
    EXPECT_TRUE(first.nextImage()) << "the other camera goes on";
    EXPECT_TRUE(first.close());
}

TEST(FailureHost, lostCameraIsReported)
{
    for (const char *script :
        {"gone A1\n", "gone A1\nEventGetData error -1010\n", "EventGetData error -1006\n",
            "gone A1\nEventGetData hang\n", "gone A1\nDSQueueBuffer error -1010\n"}) {
        SCOPED_TRACE(script);
        QuirkProducer producer;
        HostClient host(producer.ctiPath());
        ASSERT_TRUE(host.open() && host.prepareStream() && host.startStream() && host.nextImage());
        producer.setScript(script);
        EXPECT_TRUE(host.waitForLoss());
        host.disconnect();
        EXPECT_TRUE(host.waitForEnd());
        EXPECT_TRUE(canBeOpened(producer));
    }
}
