#pragma once

#include "sdk/names/CameraNames.h"

#include <cstddef>
#include <string>
#include <vector>

/// Returns the indexes of the cameras that the text means. A camera whose ID, serial number or user name is
/// exactly the text wins over the cameras of which the text is only a part of the ID, serial number, user
/// name, model or display name. Letter case does not matter (ASCII only).
std::vector<std::size_t> matchCameras(const std::vector<CameraNames> &cameras, const std::string &text);
