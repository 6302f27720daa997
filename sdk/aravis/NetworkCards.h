#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// An IPv4 address of a network card that is up, with the network behind it.
struct CardAddress
{
    std::string card; ///< Its name, for example "enp3s0".
    std::string address; ///< For example "169.254.3.1".
    std::uint32_t number; ///< The address, in the byte order of this machine.
    std::uint32_t mask; ///< Of the network, likewise.
};

/// The addresses of this machine now, in the system's order.
std::vector<CardAddress> cardAddresses();

/// The address whose network holds a device, the one with the smallest network if several do, and the first
/// of equals; null if none does.
const CardAddress *cardOf(const std::vector<CardAddress> &cards, const std::string &deviceAddress);
