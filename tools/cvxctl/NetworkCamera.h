#pragma once

#include "sdk/gvcp/CameraSearch.h"
#include "tools/cvxctl/ExitStatus.h"

#include <string>
#include <vector>

/// Finds the one GigE camera that the text means: by its MAC address, or by the names that all sub-commands
/// know. Also finds cameras in other subnets. If there is none or more than one, prints an error.
/// @param cameras All cameras that have answered a search, each of them once.
ExitStatus findNetworkCamera(
    const std::vector<SeenCamera> &cameras, const std::string &text, SeenCamera &camera);

/// Returns manufacturer, model and serial number of a camera, or its MAC address if it reports none of them.
std::string nameOf(const CameraData &camera);
