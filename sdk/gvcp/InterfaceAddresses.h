#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// An IPv4 address of a network interface that is up. Numbers are in the byte order of this machine.
struct InterfaceAddress
{
    unsigned index = 0; ///< The system's index of the network interface.
    std::string name; ///< For example "enp3s0".
    std::uint32_t address = 0;
    std::uint32_t mask = 0;
    bool canBroadcast = false; ///< True if the subnet has a broadcast address.
    bool hasCarrier
        = false; ///< True if the network interface can transmit, for example if a cable is plugged in.
    std::uint32_t peer = 0; ///< The other end of a point-to-point address, or 0.

    /// Returns the broadcast address of the subnet. The subnet of a point-to-point address contains the peer.
    std::uint32_t broadcastAddress() const { return (peer != 0 ? peer : address) | ~mask; }
};

bool operator==(const InterfaceAddress &left, const InterfaceAddress &right);

/// Returns the IPv4 addresses of this machine in the order of the system. Throws std::system_error if the
/// system cannot report the addresses.
std::vector<InterfaceAddress> interfaceAddresses();

/// Returns the address of this network interface whose subnet contains the camera. Returns null if there is
/// no such address. If several subnets contain the camera, chooses the smallest one.
const InterfaceAddress *addressInSubnet(
    const std::vector<InterfaceAddress> &addresses, unsigned interfaceIndex, std::uint32_t cameraAddress);
