#pragma once

#include "sdk/address/AddressRules.h"
#include "sdk/address/AddressText.h"
#include "sdk/address/CameraAddress.h"

#include <optional>
#include <string>
#include <vector>

/// What a person wants to do with the address of a camera.
enum class AddressChoice : std::uint8_t
{
    Temporary, ///< Until the camera is switched off.
    Lasting, ///< Also after the camera was switched off.
    Automatic ///< The address comes from a DHCP server, or is link-local.
};

/// A change that was checked but not made.
struct AddressPlan
{
    AddressChoice choice = AddressChoice::Temporary;
    CameraAddress camera;
    AddressSettings settings; ///< All zeros if the address is automatic.
    std::vector<std::string> effects; ///< What will happen, one sentence each.
    std::string obstacle; ///< Why the change cannot work and what to do instead; empty if it can.
    bool isInUse = false; ///< True if the obstacle is that another program uses the camera.
};

/// Checks a change. If the address has no prefix, the plan gets the one of the network interface.
/// @param written Is ignored if the address is automatic.
AddressPlan planAddress(AddressChoice choice, const CameraAddress &camera, const WrittenAddress &written,
    std::uint32_t gateway, const AddressSurroundings &surroundings);
