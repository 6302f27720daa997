// These tests check how the addresses of this machine are read, and which one of them is chosen for a camera.

#include "sdk/gvcp/InterfaceAddresses.h"

#include "tests/support/DescriptorLimit.h"

#include <arpa/inet.h>
#include <cstdlib>
#include <gtest/gtest.h>
#include <system_error>

namespace {

std::uint32_t number(const char *address)
{
    return ntohl(inet_addr(address));
}

InterfaceAddress address(unsigned index, const char *name, const char *address, unsigned prefix)
{
    return {index, name, number(address), ~0U << (32 - prefix), true, true};
}

} // namespace

TEST(InterfaceAddresses, smallestSubnetOfTheNetworkInterfaceIsChosen)
{
    const std::vector<InterfaceAddress> addresses{
        address(1, "office", "192.168.1.20", 24),
        address(1, "camera", "192.168.1.129", 25), // This subnet is part of the office's subnet.
        address(2, "link-local", "169.254.3.1", 16),
        address(2, "point-to-point", "10.1.1.1", 32),
    };
    const std::tuple<unsigned, const char *, const char *> expected[] = {{1, "192.168.1.7", "office"},
        {1, "192.168.1.200", "camera"}, {1, "169.254.200.1", "none"}, {2, "169.254.200.1", "link-local"},
        {2, "10.1.1.1", "point-to-point"}, {2, "10.1.1.2", "none"}, {2, "192.168.1.7", "none"}};
    for (const auto &[index, camera, name] : expected) {
        const InterfaceAddress *const found = addressInSubnet(addresses, index, number(camera));
        EXPECT_EQ(found ? found->name : "none", name) << camera;
    }
}

TEST(InterfaceAddresses, subnetOfAPointToPointAddressContainsThePeer)
{
    std::vector<InterfaceAddress> addresses{address(1, "wire", "10.1.1.1", 32)};
    addresses.front().peer = number("10.9.9.9");
    EXPECT_NE(addressInSubnet(addresses, 1, number("10.9.9.9")), nullptr);
    EXPECT_EQ(addressInSubnet(addresses, 1, number("10.1.1.1")), nullptr);
}

// This test must run in a network namespace that contains only lo.
TEST(OwnNetworkAddresses, addressesAreReadWhateverTheirLabelsAre)
{
    ASSERT_EQ(std::system("ip address add 10.5.0.1/24 dev lo label lo-office && "
                          "ip address add 10.5.1.1 peer 10.5.1.2/30 dev lo"),
        0);
    std::vector<InterfaceAddress> expected{
        address(1, "lo", "127.0.0.1", 8), address(1, "lo", "10.5.0.1", 24), address(1, "lo", "10.5.1.1", 30)};
    for (InterfaceAddress &address : expected)
        address.canBroadcast = false;
    expected.back().peer = number("10.5.1.2");
    EXPECT_TRUE(interfaceAddresses() == expected);
    ASSERT_EQ(std::system("ip link set lo down"), 0);
    EXPECT_TRUE(interfaceAddresses().empty());
}

TEST(InterfaceAddresses, failureToReadTheAddressesIsReportedWithItsReason)
{
    std::string reason;
    try {
        const DescriptorLimit limit(0); // Reading the addresses needs a descriptor.
        interfaceAddresses();
    } catch (const std::system_error &error) {
        reason = error.what();
    }
    EXPECT_EQ(reason, "The network interfaces cannot be listed: Too many open files");
}
