#pragma once

#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/FeatureClient.h"

#include <array>

/// Returns true if the camera has factors for its colours.
bool canBalanceWhite(const FeatureClient &client);

/// Returns the call that multiplies the camera's factors of red, green and blue by the gains of the display.
/// Switches the automatic white balance off, and leaves the selector as it was.
CameraConnection::Call whiteBalanceCall(const std::array<double, 3> &gains);
