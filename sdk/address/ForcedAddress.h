#pragma once

#include "sdk/gvcp/CameraSearch.h"
#include "sdk/gvcp/ForceAddress.h"

#include <functional>
#include <optional>

/// Sends a camera the command to use another address at once. Sends it again if there is no answer. Returns
/// the status of the answer. Returns nothing if the camera does not answer, which it need not. Blocks for at
/// most 1.5 s. Throws std::system_error if the system cannot create the socket.
std::optional<std::uint16_t> forceAddress(const SeenCamera &camera, const AddressSettings &settings);

/// Searches the camera with this MAC address for at most 5 s, until `accept` returns true. Returns the last
/// answer. Throws std::system_error if the system cannot create the sockets.
std::optional<SeenCamera> awaitCamera(
    const MacAddress &mac, const std::function<bool(const SeenCamera &)> &accept);
