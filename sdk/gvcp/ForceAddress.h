#pragma once

#include "sdk/gvcp/CameraData.h"
#include "sdk/gvcp/MessageBytes.h"

#include <cstdint>

/// The address of a camera with what belongs to it, in the byte order of this machine.
struct AddressSettings
{
    std::uint32_t address = 0;
    std::uint32_t mask = 0;
    std::uint32_t gateway = 0; ///< 0 if there is none.
};

inline bool operator==(const AddressSettings &left, const AddressSettings &right)
{
    return left.address == right.address && left.mask == right.mask && left.gateway == right.gateway;
}

/// The code of a camera's answer to the command below.
constexpr std::uint16_t forceAddressAcknowledgeCode = 0x0005;

/// Returns the command that gives the camera with this MAC address another address until it is switched off.
/// The camera obeys it in any subnet. The address 0 makes the camera get an address anew. The command permits
/// the camera to answer by broadcast.
/// @param requestId Any number except 0. The camera's answer repeats the number.
MessageBytes forceAddressCommand(
    const MacAddress &mac, const AddressSettings &settings, std::uint16_t requestId);
