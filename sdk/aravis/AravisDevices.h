#pragma once

#include "sdk/producer/DeviceSource.h"

#include <arv.h>
#include <string>
#include <vector>

/// A device that Aravis has found. All strings are UTF-8; a string that Aravis does not report is empty.
struct FoundDevice
{
    std::string id; ///< Stays the same after a restart and at another port.
    std::string vendor;
    std::string model;
    std::string serial;
    std::string address; ///< The IP address of a GigE Vision device.
    std::string interfaceId; ///< The ID of the device's interface; findDevices() does not set it.
    bool isMissed = false; ///< True if the last search did not find the device, but the previous one did.
};

/// Searches for the devices of one protocol. Blocks until the search has ended, which takes a
/// second for GigE Vision. Any thread may call findDevices(); concurrent searches run one after another.
/// @param interfaceInstance The function of Aravis that returns the object of the protocol.
std::vector<FoundDevice> findDevices(ArvInterface *(*interfaceInstance)());

/// Returns the record of a device. The display name consists of vendor, model and serial number; if all of
/// them are empty, the display name is the ID.
DeviceRecord toRecord(const FoundDevice &device, const std::string &tlType);
