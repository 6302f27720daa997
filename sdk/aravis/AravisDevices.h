#pragma once

#include "sdk/producer/DeviceSource.h"

#include <string>
#include <vector>

/// A USB3 Vision device that Aravis has found. All strings are UTF-8; a string that Aravis does not report is
/// empty.
struct FoundDevice
{
    std::string id; ///< Stays the same after a restart and at another port.
    std::string vendor;
    std::string model;
    std::string serial;
};

/// Searches for devices. Blocks until the search has ended. Any thread may call findDevices(); concurrent
/// searches run one after another.
std::vector<FoundDevice> findDevices();

/// Returns the record of a device. The display name consists of vendor, model and serial number; if all of
/// them are empty, the display name is the ID.
DeviceRecord toRecord(const FoundDevice &device);
