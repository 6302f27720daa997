#pragma once

#include "sdk/producer/DeviceSource.h"

#include <arv.h>
#include <string>
#include <vector>

/// A device that Aravis has found. All strings are UTF-8; a string that Aravis does not report is empty.
struct FoundDevice
{
    std::string id; ///< Identifies the device wherever it is plugged in, and after a restart.
    std::string vendor;
    std::string model;
    std::string serial;
    std::string address; ///< The IP address of a GigE Vision device.
    std::string interfaceId; ///< The interface that lists the device; findDevices() leaves it empty.
    bool isMissed = false; ///< The last search did not find the device, but the one before did.
};

/// Searches for the devices of one protocol. Blocks as long as Aravis does: a second for GigE Vision.
/// Several threads may call it; they search one after another.
/// @param interfaceInstance Aravis's function that returns the object of the protocol.
std::vector<FoundDevice> findDevices(ArvInterface *(*interfaceInstance)());

/// Returns the record of a device. Its display name consists of vendor, model and serial number.
DeviceRecord toRecord(const FoundDevice &device, const std::string &tlType);
