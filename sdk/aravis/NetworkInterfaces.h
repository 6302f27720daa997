#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// An IPv4 address of a network interface that is up.
struct InterfaceAddress
{
    std::string interfaceName; ///< For example "enp3s0".
    std::string address; ///< For example "169.254.3.1".
    std::uint32_t number; ///< The address in the byte order of this machine.
    std::uint32_t mask; ///< The network mask in the byte order of this machine.
};

/// Returns the IPv4 addresses of this machine in the order of the system. Throws std::system_error if the
/// system cannot report the addresses. Any thread may call this function.
std::vector<InterfaceAddress> interfaceAddresses();

/// Returns the address whose network contains the device. Returns null if there is no such address, or if the
/// device's address is not an IPv4 address. If several networks contain the device, chooses the smallest
/// network, and the first one of several networks of equal size.
const InterfaceAddress *findAddressFor(
    const std::vector<InterfaceAddress> &addresses, const std::string &deviceAddress);
