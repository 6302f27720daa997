#pragma once

#include "sdk/device/DeviceCore.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

/// What was restored on a camera that was opened again.
struct RestoredDevice
{
    std::shared_ptr<StreamCore> stream; ///< The stream that continues; null if there is none.
    std::shared_ptr<const ImageQueue> images; ///< Where its images arrive.
    std::vector<std::string> refused; ///< Names of the nodes whose values the camera has refused.
};

/// Writes back what the program has written, continues or ends its temporary changes, and starts the host's
/// part of the running stream. Returns a
/// sentence with the reason if the host fails or the stream cannot be started.
std::variant<RestoredDevice, std::string> restoreDevice(DeviceCore &core, HostChannel &host);
