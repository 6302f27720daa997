#pragma once

#include "sdk/cvxcpp/CameraList.h"

#include <cstddef>
#include <vector>

/// What one producer has reported.
struct ProducerReport
{
    std::size_t directory; ///< The place of the producer's directory in the search order.
    CameraList::Pointer list;
};

/// What is shown of each list, for reports in the search order: without the cameras that a producer of an
/// earlier directory has reported, told by vendor, model and serial number. A camera that lacks one of these
/// is not recognised. Nothing is left out within one producer or one directory. A list of which nothing is
/// left out comes back as it is.
std::vector<CameraList::Pointer> withoutRepeats(const std::vector<ProducerReport> &reports);
