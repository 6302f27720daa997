// These tests check how the addresses of this machine are read, and which one of them is chosen for a camera.

#include "sdk/gige/InterfaceAddresses.h"

#include "tests/support/DescriptorLimit.h"

#include <arpa/inet.h>
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

TEST(InterfaceAddresses, everyAddressOfThisMachineIsInItsOwnSubnet)
{
    const std::vector<InterfaceAddress> own = interfaceAddresses();
    for (const InterfaceAddress &address : own) {
        EXPECT_FALSE(address.name.empty());
        EXPECT_NE(addressInSubnet(own, address.index, address.address), nullptr) << address.name;
    }
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
