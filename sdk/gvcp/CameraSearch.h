#pragma once

#include "sdk/gvcp/DiscoveryAcknowledgement.h"
#include "sdk/gvcp/InterfaceAddresses.h"

#include <chrono>
#include <functional>
#include <vector>

/// A camera that has answered, and the network interface at which its answer has arrived.
struct SeenCamera
{
    CameraData camera;
    std::uint32_t offeredMethods = 0; ///< See DiscoveryAcknowledgement.
    std::uint32_t enabledMethods = 0;

    /// The address whose subnet contains the camera or, if there is no such address, the first address of the
    /// network interface.
    InterfaceAddress networkInterface;
    bool isInSubnet = false; ///< False if the network interface cannot reach the camera.
};

/// Sends discovery commands through all network interfaces until one second before the end of the time,
/// because a camera may wait that long before it answers. Calls `accept` for every answer. Ends early if
/// `accept` returns true. Throws std::system_error if the system cannot create the sockets.
/// @param addresses The result of interfaceAddresses().
void searchCameras(const std::vector<InterfaceAddress> &addresses, std::chrono::milliseconds time,
    const std::function<bool(const SeenCamera &)> &accept);

/// Searches for 1.5 s. Returns every camera that has answered, once for each network interface. Throws
/// std::system_error if the system cannot create the sockets.
std::vector<SeenCamera> seenCameras(const std::vector<InterfaceAddress> &addresses);

/// Returns every camera once: where it is in the subnet of the network interface, or else where it has
/// answered first.
std::vector<SeenCamera> oncePerCamera(const std::vector<SeenCamera> &cameras);
