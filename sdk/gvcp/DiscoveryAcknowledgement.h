#pragma once

#include "sdk/gvcp/CameraData.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

/// The UDP port on which a GigE Vision camera receives commands.
constexpr std::uint16_t cameraPort = 3956;

/// Bits for the methods by which a camera can get its address.
constexpr std::uint32_t persistentAddressMethod = 1, dhcpMethod = 2, linkLocalMethod = 4;

/// An answer of a GigE Vision camera to the discovery command.
struct DiscoveryAcknowledgement
{
    std::uint16_t requestId = 0; ///< ID of the discovery command that the camera answers.
    std::uint32_t offeredMethods = 0; ///< The methods that the camera knows.
    std::uint32_t enabledMethods = 0; ///< The methods that the camera uses.
    CameraData camera;
};

/// Returns the discovery command. It permits the camera to answer by broadcast, because another answer does
/// not reach a host in another subnet.
/// @param requestId Any number except 0. The camera's answer repeats the number.
std::array<std::uint8_t, 8> discoveryCommand(std::uint16_t requestId);

/// Parses a datagram. Returns nothing if the datagram is not a complete and successful answer to the
/// discovery command. Bytes after the answer are ignored.
std::optional<DiscoveryAcknowledgement> parseAcknowledgement(const std::uint8_t *data, std::size_t size);
