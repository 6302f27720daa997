// These tests run the device source of UniversalGEV with real sockets. They must run in a network namespace
// that contains only lo.

#include "sdk/gige/GigEVisionSource.h"
#include "tests/gige/FakeResponder.h"
#include "tests/support/DescriptorLimit.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <future>
#include <gtest/gtest.h>
#include <optional>
#include <poll.h>

using namespace std::chrono_literals;

namespace {

using Ids = std::vector<std::string>;
using Builder = AcknowledgementBuilder;

const std::string loopback = "127.0.0.1";

Builder camera(std::uint8_t mac)
{
    return Builder().mac({0, 0, 0, 0, 0, mac}).address({127, 0, 0, mac});
}

Ids idsOf(const std::vector<DeviceRecord> &records)
{
    Ids ids;
    for (const DeviceRecord &record : records)
        ids.push_back(record.id);
    return ids;
}

} // namespace

class LoopbackDiscovery : public testing::Test
{
protected:
    LoopbackDiscovery() { source.updateInterfaces(); }

    Ids search(std::chrono::milliseconds timeout = 200ms)
    {
        return idsOf(source.updateDevices(loopback, timeout));
    }

    /// Searches until the cameras are as expected, but not longer than a minute. Returns the last list.
    Ids await(const Ids &expected)
    {
        const auto end = std::chrono::steady_clock::now() + 1min;
        Ids ids = search();
        while (ids != expected && std::chrono::steady_clock::now() < end)
            ids = search();
        return ids;
    }

    /// Waits until the source reports a change, but not longer than a minute. Returns false if it reports
    /// none.
    bool awaitChange() const
    {
        pollfd descriptor{source.listChangedDescriptor(), POLLIN, 0};
        std::uint64_t count = 0;
        return poll(&descriptor, 1, 60000) == 1 && read(descriptor.fd, &count, sizeof count) == sizeof count;
    }

    FakeResponder responder;
    GigEVisionSource source;
};

TEST_F(LoopbackDiscovery, answerBecomesADeviceRecord)
{
    responder.setAnswers({
        camera(1)
            .serial("24990001")
            .text(Builder::userNamePosition, "Test bench")
            .text(Builder::versionPosition, "2.7"),
        Builder().address({10, 1, 1, 1}).serial("24990002"),
        camera(3)
            .text(Builder::vendorPosition, std::string(32, '\0'))
            .text(Builder::modelPosition, std::string(32, '\0')),
    });
    EXPECT_EQ(source.updateInterfaces(),
        (std::vector<InterfaceRecord>{{loopback, "Network interface lo (127.0.0.1)", "GEV"}}));
    const Ids expected{"00:00:00:00:00:01", "00:00:00:00:00:03", "Orvelle-Kx200-24990002"};
    ASSERT_EQ(await(expected), expected);
    EXPECT_EQ(source.updateDevices(loopback, 0ms),
        (std::vector<DeviceRecord>{{expected[0], "Orvelle", "Kx200", "GEV", "Orvelle Kx200 24990001",
                                       "Test bench", "24990001", GenTL::DEVICE_ACCESS_STATUS_UNKNOWN, "2.7"},
            {expected[1], "", "", "GEV", expected[1], "", "", GenTL::DEVICE_ACCESS_STATUS_UNKNOWN, ""},
            {expected[2], "Orvelle", "Kx200", "GEV", "Orvelle Kx200 24990002", "", "24990002",
                GenTL::DEVICE_ACCESS_STATUS_NOACCESS, ""}}));
    EXPECT_EQ(source.updateDevices("10.1.1.1", 0ms), std::vector<DeviceRecord>{}) << "not an interface";
}

TEST_F(LoopbackDiscovery, answerWithAWrongRequestIdIsIgnored)
{
    ASSERT_TRUE(responder.awaitSearches(1));
    for (const std::uint16_t change : std::initializer_list<std::uint16_t>{0x8000, 0x0100})
        responder.sendNow(camera(1), change);
    responder.sendNow(camera(2));
    EXPECT_EQ(await({"00:00:00:00:00:02"}), Ids{"00:00:00:00:00:02"});
}

TEST_F(LoopbackDiscovery, lateAnswerIsReportedAndCollectedWithoutASearch)
{
    ASSERT_TRUE(responder.awaitSearches(1));
    responder.sendNow(camera(1));
    EXPECT_TRUE(awaitChange());
    const int commands = responder.commands();
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(search(0ms), Ids{"00:00:00:00:00:01"});
    EXPECT_LT(responder.commands() - commands, 50) << "only the source's own searches";
}

TEST_F(LoopbackDiscovery, silentCameraIsAskedAgainAndThenRemoved)
{
    responder.setAnswers({camera(1)});
    ASSERT_EQ(await({"00:00:00:00:00:01"}), Ids{"00:00:00:00:00:01"});
    responder.setAnswers({});
    do
        ASSERT_TRUE(awaitChange());
    while (search(0ms) != Ids{});
    EXPECT_TRUE(responder.awaitRepetition());
}

TEST_F(LoopbackDiscovery, callersShareASearch)
{
    std::vector<std::future<Ids>> callers;
    for (int i = 0; i < 100; ++i)
        callers.push_back(std::async(std::launch::async, [this] { return search(1s); }));
    for (std::future<Ids> &caller : callers)
        EXPECT_EQ(caller.get(), Ids{});
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(search(1s), Ids{});
    EXPECT_LT(responder.commands(), 100);
}

TEST_F(LoopbackDiscovery, networkInterfaceWithTwoAddressesGetsOneLimitedBroadcast)
{
    ASSERT_EQ(std::system("ip address add 10.5.2.1/24 dev lo"), 0);
    while (source.updateInterfaces().size() < 2)
        ASSERT_TRUE(awaitChange());
    EXPECT_TRUE(responder.awaitSearches(2));
    EXPECT_FALSE(responder.hasRepetition());
    EXPECT_EQ(std::system("ip address delete 10.5.2.1/24 dev lo"), 0);
}

TEST_F(LoopbackDiscovery, floodOfAnswersLeavesTheListBounded)
{
    ASSERT_TRUE(responder.awaitSearches(1));
    std::atomic<bool> isFlooding{true};
    const auto flood = std::async(std::launch::async, [&] {
        for (std::uint32_t i = 0; isFlooding; ++i) {
            const auto high = static_cast<std::uint8_t>(i >> 8 & 0x1F), low = static_cast<std::uint8_t>(i);
            responder.sendNow(Builder().mac({1, 0, 0, 0, high, low}).address({127, 1, high, low}));
        }
    });
    const auto end = std::chrono::steady_clock::now() + 1min;
    std::size_t count = 0;
    while (count < CameraRegistry::maxCameras && std::chrono::steady_clock::now() < end) {
        count = search(1s).size();
        EXPECT_LE(count, CameraRegistry::maxCameras);
    }
    EXPECT_EQ(count, CameraRegistry::maxCameras);
    EXPECT_TRUE(responder.awaitSearches(2)) << "the first of them ends in spite of the flood";
    isFlooding = false;
}

TEST(DescriptorShortage, discoveryFailsWithItsReason)
{
    const DescriptorLimit limit(0);
    std::string reason;
    try {
        const GigEDiscovery discovery;
    } catch (const std::system_error &error) {
        reason = error.what();
    }
    EXPECT_EQ(reason, "The search for GigE cameras cannot start: Too many open files");
}

TEST(DescriptorShortage, discoveryRecoversAfterAShortage)
{
    FakeResponder responder;
    responder.setAnswers({camera(1)});
    std::optional<GigEDiscovery> discovery;
    {
        const DescriptorLimit limit(3); // Two events and the monitor.
        discovery.emplace();
        EXPECT_THROW(discovery->interfaces(), std::system_error);
        EXPECT_TRUE(discovery->cameras(loopback, 200ms).empty());
    }
    const auto end = std::chrono::steady_clock::now() + 1min;
    while (discovery->cameras(loopback, 200ms).empty() && std::chrono::steady_clock::now() < end) { }
    EXPECT_EQ(discovery->cameras(loopback, 0ms).size(), 1U);
    EXPECT_EQ(discovery->interfaces().size(), 1U);
}

// This test must run in the network namespace that with-camera-networks creates.
TEST(CameraNetworkShortage, allNetworkInterfacesAreSearchedAfterAShortage)
{
    std::optional<GigEDiscovery> discovery;
    {
        const DescriptorLimit limit(4); // Two events, the monitor, and the socket of one network interface.
        discovery.emplace();
    }
    const auto end = std::chrono::steady_clock::now() + 1min;
    const auto areAllFound = [&] {
        return !discovery->cameras("10.77.1.1", 200ms).empty()
            && !discovery->cameras("10.77.2.1", 0ms).empty();
    };
    bool isFound = areAllFound();
    while (!isFound && std::chrono::steady_clock::now() < end)
        isFound = areAllFound();
    EXPECT_TRUE(isFound);
}
