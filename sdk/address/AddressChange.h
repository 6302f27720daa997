#pragma once

#include "sdk/address/AddressPlan.h"

#include <optional>
#include <string>

enum class ChangeResult : std::uint8_t
{
    Done,
    InUse, ///< Another program controls the camera.
    Refused, ///< The camera does not permit the change.
    NoAnswer,
    Failed ///< The system does not permit to send commands.
};

/// How a change has ended.
struct AddressChange
{
    ChangeResult result = ChangeResult::Failed;
    std::string text; ///< One or two sentences for people.
    std::optional<SeenCamera> camera; ///< The camera as it answers after the change, if it does.
};

/// Makes a change that has no obstacle. Waits for at most 5 s until the camera answers at its new address.
/// Blocks for at most 15 s.
AddressChange changeAddress(const AddressPlan &plan);
