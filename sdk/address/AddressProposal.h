#pragma once

#include "sdk/address/AddressRules.h"

#include <functional>
#include <optional>

/// Asks which devices have these addresses, and returns the neighbour table after that.
using AddressQuestion = std::function<std::vector<Neighbour>(
    const InterfaceAddress &from, const std::vector<std::uint32_t> &addresses)>;

/// Returns an address that is free in the subnet of the camera's network interface. Returns nothing if none
/// is found among the first addresses after the interface's own one.
std::optional<AddressSettings> proposeAddress(
    const SeenCamera &camera, AddressSurroundings surroundings, const AddressQuestion &ask);

/// Asks the devices with probeAddresses().
std::vector<Neighbour> askNetwork(const InterfaceAddress &from, const std::vector<std::uint32_t> &addresses);
