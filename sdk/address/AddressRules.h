#pragma once

#include "sdk/address/NeighbourTable.h"
#include "sdk/gvcp/CameraSearch.h"
#include "sdk/gvcp/ForceAddress.h"

#include <optional>
#include <string>
#include <vector>

/// What is known about the addresses around a camera.
struct AddressSurroundings
{
    std::vector<InterfaceAddress> own; ///< The addresses of this machine.
    std::vector<SeenCamera> cameras; ///< All cameras that have answered.
    std::vector<Neighbour> neighbours;
};

/// Returns why the camera cannot work with the address, as sentences that say what to do instead. Returns
/// nothing if no reason is known.
std::optional<std::string> whyUnusable(
    const SeenCamera &camera, const AddressSettings &settings, const AddressSurroundings &surroundings);

/// Returns the subnet of the camera's network interface that contains the address, or null.
const InterfaceAddress *subnetFor(
    const SeenCamera &camera, std::uint32_t address, const AddressSurroundings &surroundings);

/// Returns true if the number belongs to the addresses that a device gives itself if it gets no other.
inline bool isLinkLocal(std::uint32_t address)
{
    return address >> 16 == 0xA9FE;
}
