#pragma once

#include "sdk/aravis/GObjectPointer.h"
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

/// Opens a device that was found. Throws GenTlError. Any thread may call openDevice(); it runs when no search
/// runs.
GObjectPointer<ArvDevice> openDevice(const FoundDevice &device);

/// Returns vendor, model and serial number. If all of them are empty, returns the ID.
std::string displayName(const FoundDevice &device);

DeviceRecord toRecord(const FoundDevice &device);
