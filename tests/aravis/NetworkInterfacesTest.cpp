// These tests check which address of this machine is chosen for a camera.

#include "sdk/aravis/NetworkInterfaces.h"

#include "tests/aravis/DescriptorLimit.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <system_error>

namespace {

InterfaceAddress address(const char *interfaceName, const char *address, unsigned prefix)
{
    return {interfaceName, address, ntohl(inet_addr(address)), ~0U << (32 - prefix)};
}

const std::vector<InterfaceAddress> addresses{
    address("lo", "127.0.0.1", 8),
    address("office", "192.168.1.20", 24),
    address("camera", "192.168.1.129", 25), // This network is part of the office network.
    address("link-local", "169.254.3.1", 16),
    address("second", "169.254.7.9", 16), // This is also the link-local network.
    address("point-to-point", "10.1.1.1", 32),
};

} // namespace

TEST(NetworkInterfaces, smallestNetworkThatContainsTheDeviceIsChosen)
{
    const std::pair<const char *, const char *> expected[] = {// The device's address, the interface's name.
        {"192.168.1.7", "office"}, {"192.168.1.200", "camera"}, {"169.254.200.1", "link-local"},
        {"127.0.0.1", "lo"}, {"10.1.1.1", "point-to-point"}, {"10.1.1.2", "none"}, {"192.168.2.7", "none"},
        {"", "none"}, {"USB3", "none"}, {"::1", "none"}};
    for (const auto &[device, name] : expected) {
        const InterfaceAddress *const found = findAddressFor(addresses, device);
        EXPECT_EQ(found ? found->interfaceName : "none", name) << device;
    }
}

TEST(NetworkInterfaces, everyAddressOfThisMachineIsInItsOwnNetwork)
{
    const std::vector<InterfaceAddress> own = interfaceAddresses();
    for (const InterfaceAddress &address : own) {
        EXPECT_EQ(ntohl(inet_addr(address.address.c_str())), address.number);
        EXPECT_FALSE(address.interfaceName.empty());
        EXPECT_NE(findAddressFor(own, address.address), nullptr) << address.address;
    }
}

TEST(NetworkInterfaces, failureToReadTheAddressesIsReportedWithItsReason)
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
