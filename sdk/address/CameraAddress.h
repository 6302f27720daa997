#pragma once

#include "sdk/gvcp/CameraSearch.h"
#include "sdk/gvcp/ForceAddress.h"

#include <cstdint>
#include <optional>
#include <string>

/// How a camera got its present address.
enum class AddressOrigin : std::uint8_t
{
    Unknown, ///< The camera cannot be read, or does not report its methods.
    Persistent, ///< Stored in the camera.
    Dhcp, ///< Assigned by a DHCP server, or temporary: a camera does not report the difference.
    LinkLocal, ///< Chosen by the camera, because it got no other.
    Temporary ///< Until the camera is switched off.
};

/// Who controls a camera.
enum class ControlState : std::uint8_t
{
    Unknown, ///< The camera cannot be read.
    Free,
    Controlled, ///< By a program, which may run on another machine. Others may read the camera.
    Exclusive ///< Others may not even read the camera.
};

/// What a camera reports about its address.
struct CameraAddress
{
    SeenCamera seen;
    AddressOrigin origin = AddressOrigin::Unknown;
    std::optional<AddressSettings> persistent; ///< The stored address, which need not be in use.
    ControlState control = ControlState::Unknown;
    std::string problem; ///< Why the camera cannot be read; empty if it can.
};

/// Reads the registers of a camera. Blocks for at most two seconds. Never fails: a camera that cannot be read
/// has a problem.
CameraAddress readCameraAddress(const SeenCamera &camera);

/// Returns how a camera got its address.
/// @param persistent The stored address; nothing if it cannot be read.
AddressOrigin originOf(const SeenCamera &camera, const std::optional<AddressSettings> &persistent);

/// Returns the origin in words, for example "DHCP server, or temporary".
const char *originText(AddressOrigin origin);

/// Returns the names of the methods by which a camera can get an address, for example "persistent, DHCP".
std::string methodsText(std::uint32_t methods);

namespace AddressRegister {

constexpr std::uint32_t enabledMethods = 0x0014;
constexpr std::uint32_t persistentAddress = 0x064C;
constexpr std::uint32_t persistentMask = 0x065C;
constexpr std::uint32_t persistentGateway = 0x066C;
constexpr std::uint32_t controlPrivilege = 0x0A00;

} // namespace AddressRegister
