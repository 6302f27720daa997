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
    std::uint32_t mask; ///< The network mask, likewise.
};

/// Returns the addresses that this machine has now, in the system's order. Throws std::system_error if the
/// system cannot list them. Any thread may call it.
std::vector<InterfaceAddress> interfaceAddresses();

/// Returns the address in whose network a device is; null if there is none, or if the device's address is not
/// an IPv4 address. The smallest network wins, and the first one among networks of equal size.
const InterfaceAddress *findAddressFor(
    const std::vector<InterfaceAddress> &addresses, const std::string &deviceAddress);
