#pragma once

#include "sdk/protocol/CameraRecords.h"

#include <string>

/// Returns how texts for people name a camera, for example "Orvelle Kx200 (24030117)": vendor and model,
/// otherwise the display name, otherwise the ID; then the serial number, if there is one.
std::string cameraLabel(const DeviceRecord &device);
