// Tests which timeouts a host passes to its producer, and what a timeout of the producer means.

#include "tests/protocol/ScriptedHost.h"

#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

namespace {

const std::string camera = "interface net0\ndevice net0|A1|Vendor|Model|SN1|Name|GEV\n";
const std::string timesOut = "fault IFUpdateDeviceList error -1011\n"; // Without waiting.

Strings timeoutsOf(const ScriptedHost &host, const std::string &interface)
{
    return host.argumentsOf("IFUpdateDeviceList " + interface);
}

} // namespace

TEST(HostTimeout, searchesGetTheTimeoutOfTheirRequest)
{
    ScriptedHost host(camera + "interface net1\n");
    const auto list = host.list(200);
    host.list(1000);
    host.list(0);
    EXPECT_TRUE(
        host.connection().ask<CameraListReply>(ListInterfaceRequest{list.interfaces.at(1).number, 300}));
    EXPECT_EQ(timeoutsOf(host, "net0"), (Strings{"200", "1000", "0"}));
    EXPECT_EQ(timeoutsOf(host, "net1"), (Strings{"200", "1000", "0", "300"}));
}

TEST(HostTimeout, timeoutOfABackgroundSearchGrowsAndIsResetAfterItsMaximum)
{
    ScriptedHost host(timesOut + "interface net0\n");
    for (const std::size_t problems : {0U, 0U, 1U, 0U})
        EXPECT_EQ(host.list(1000).problems.size(), problems);
    EXPECT_EQ(timeoutsOf(host, "net0"), (Strings{"1000", "2000", "4000", "1000"}));
}

TEST(HostTimeout, timeoutOfABackgroundSearchGrowsUntilTheSearchSucceeds)
{
    ScriptedHost host("interface net1\nfault IFUpdateDeviceList:net0 search 1001\n" + camera);
    EXPECT_TRUE(idsOf(host.list(1000)).empty());
    EXPECT_EQ(idsOf(host.list(1000)), Strings{"A1"});
    EXPECT_TRUE(host.list(1000).problems.empty());
    EXPECT_EQ(timeoutsOf(host, "net0"), (Strings{"1000", "2000", "2000"}));
    EXPECT_EQ(timeoutsOf(host, "net1"), (Strings{"1000", "1000", "1000"}));
}

TEST(HostTimeout, shortSearchDoesNotChangeTheTimeoutOfBackgroundSearches)
{
    ScriptedHost host(timesOut + "interface net0\n");
    for (const std::uint32_t timeout : {200, 1000, 200, 0, 1000})
        EXPECT_TRUE(host.list(timeout).problems.empty()) << timeout;
    EXPECT_EQ(timeoutsOf(host, "net0"), (Strings{"200", "1000", "200", "0", "2000"}));
}

TEST(HostTimeout, shortSearchThatTimesOutAddsDevicesAndRemovesNone)
{
    ScriptedHost host(camera);
    host.list(1000);
    host.setScript(timesOut + "interface net0\nlate 1000|net0|A1\ndevice net0|A0\ndevice net0|B\n");
    for (const std::uint32_t timeout : {200, 200, 0}) {
        const auto list = host.list(timeout);
        EXPECT_EQ(idsOf(list), (Strings{"A0", "A1", "B"}));
        EXPECT_TRUE(list.problems.empty());
    }
    host.setScript("interface net0\ndevice net0|B\n");
    EXPECT_EQ(idsOf(host.list(200)), Strings{"B"}) << "the producer has no other devices";
}

TEST(HostTimeout, problemsAreNotReportedWhileAShortSearchHasNotEnded)
{
    ScriptedHost host(timesOut + "fault IFGetNumDevices error -1014\n" + camera);
    EXPECT_TRUE(host.list(200).problems.empty());
}

TEST(HostTimeout, interfaceListIsConfirmedByTheFirstBackgroundSearch)
{
    ScriptedHost host(camera);
    for (const std::uint32_t timeout : {200, 200, 1000, 1000})
        host.list(timeout);
    host.list({true, 0});
    EXPECT_EQ(host.argumentsOf("TLUpdateInterfaceList"), (Strings{"20", "1000", "0"}));
}

TEST(HostTimeout, interfaceListThatTimesOutIsUpdatedAgainWithTheNextSearch)
{
    ScriptedHost host("fault TLUpdateInterfaceList error -1011\n" + camera);
    for (const std::uint32_t timeout : {200, 1000, 200})
        EXPECT_TRUE(host.list(timeout).problems.empty()) << timeout;
    host.setScript(camera);
    EXPECT_EQ(idsOf(host.list(1000)), Strings{"A1"});
    EXPECT_EQ(idsOf(host.list(1000)), Strings{"A1"});
    EXPECT_EQ(host.argumentsOf("TLUpdateInterfaceList"), (Strings{"20", "1000", "20", "2000"}));
}

TEST(HostTimeout, sixteenInterfacesAreSearchedAtTheSameTime)
{
    ScriptedHost host("interfaces 16\nfault IFUpdateDeviceList meet 16\n"); // Fails unless 16 calls meet.
    EXPECT_TRUE(host.list(1000).problems.empty());
}
