#pragma once

#include "sdk/cvxcpp/MacAddress.h"
#include "sdk/protocol/CameraRecords.h"

#include <string>
#include <vector>

/// The data by which two producers' entries are recognised as the same camera. Letter case (ASCII only) and
/// surrounding white space of the vendor, model and serial number are ignored.
struct CameraIdentity
{
    std::string model; ///< Vendor and model; empty if the camera lacks one of them.
    std::string serial; ///< May be empty.
    std::vector<MacAddress> addresses; ///< The MAC addresses in the ID and the serial number.
    std::vector<MacAddress> digits; ///< All sequences of twelve digits in the ID and the serial number.
};

CameraIdentity identityOf(const DeviceRecord &device);
