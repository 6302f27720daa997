#pragma once

#include "sdk/process/Timing.h"

#include <string>

/// The host program and the time limits of opened cameras.
struct DeviceOptions
{
    std::string hostProgram; ///< Path of CvxCameraHost.

    Milliseconds openTimeout{10000}; ///< Time that a host has to open its camera.
    Milliseconds inUseTimeout{5000}; ///< Time for which a camera that is in use is tried again.
    Milliseconds inUseInterval{500}; ///< Time between two of these attempts.
    Milliseconds requestTimeout{5000}; ///< Time that a host has to answer a request.
    Milliseconds startTimeout{10000}; ///< Time that a host has to start a stream.
    Milliseconds stopTimeout{3000}; ///< Time that a host has to stop a stream.
    Milliseconds closeTimeout{3000}; ///< The longest time that closing a device takes.
    Milliseconds putBackTimeout{3000}; ///< How much longer that may take if temporary changes are put back.
    Milliseconds reopenInterval{1000}; ///< Time between two attempts to open a lost camera.
};
