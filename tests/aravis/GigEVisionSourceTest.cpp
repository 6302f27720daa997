// These tests check which interface reports a camera. They define the cameras and network interfaces
// themselves.

#include "sdk/aravis/GigEVisionSource.h"

#include <gtest/gtest.h>

namespace {

using Ids = std::vector<std::string>;

constexpr std::uint32_t mask = 0xFFFFFF00;

FoundDevice device(const std::string &id, const std::string &address)
{
    FoundDevice device;
    device.id = id;
    device.address = address;
    return device;
}

} // namespace

class GigEVisionSourceTest : public testing::Test
{
protected:
    Ids devices(const std::string &interfaceId)
    {
        Ids ids;
        for (const DeviceRecord &record : source.updateDevices(interfaceId))
            ids.push_back(record.id);
        return ids;
    }

    std::vector<InterfaceAddress> addresses{
        {"one", "10.0.1.1", 0x0A000101, mask}, {"two", "10.0.2.1", 0x0A000201, mask}};
    std::vector<FoundDevice> found{device("a", "10.0.1.7"), device("b", "10.0.2.7"), device("c", "10.9.9.7")};
    GigEVisionSource source{
        [this] { return found; }, [this] { return ++addressLists, addresses; }, std::chrono::milliseconds(0)};
    int addressLists = 0;
};

TEST_F(GigEVisionSourceTest, eachAddressIsAnInterfaceWithTheDevicesOfItsNetwork)
{
    EXPECT_EQ(source.updateInterfaces(),
        (std::vector<InterfaceRecord>{{"10.0.1.1", "Network card one (10.0.1.1)", "GEV"},
            {"10.0.2.1", "Network card two (10.0.2.1)", "GEV"},
            {"elsewhere", "Addresses outside the network cards' networks", "GEV"}}));
    EXPECT_EQ(devices("10.0.1.1"), Ids{"a"});
    EXPECT_EQ(devices("10.0.2.1"), Ids{"b"});
    EXPECT_EQ(devices("elsewhere"), Ids{"c"});
    EXPECT_EQ(addressLists, 4) << "once per search while no device is missed";
    EXPECT_EQ(source.updateDevices("elsewhere").at(0).displayName, "c") << "the ID, without other fields";
}

TEST_F(GigEVisionSourceTest, missedDeviceIsRemovedAtOnceIfItsNetworkInterfaceIsGone)
{
    for (const char *const interface : {"10.0.1.1", "10.0.2.1", "elsewhere"}) {
        const auto allFound = found;
        EXPECT_EQ(devices(interface).size(), 1U);
        found.clear();
        EXPECT_EQ(devices(interface).size(), 1U) << "the network interface is still there";
        found = allFound;
        EXPECT_EQ(devices(interface).size(), 1U);
    }
    found.clear();
    addresses.erase(addresses.begin());
    EXPECT_EQ(devices("10.0.1.1"), Ids{});
    EXPECT_EQ(devices("elsewhere"), Ids{}) << "missed twice";
}
