#pragma once

#include "sdk/cvxcpp/CameraIdentity.h"

#include <vector>

/// A camera that a producer reports, for the choice of the producer that lists it.
struct DuplicateCandidate
{
    const CameraIdentity *identity = nullptr;
    bool isOwned = false; ///< True if the program knows that this producer lists the camera.
};

/// Takes the cameras of each producer in the search order, and returns for each camera whether its producer
/// lists it. A camera that several producers report, as CameraIndex defines it, is listed by the producer
/// that owns it, otherwise by the first one in the search order. Duplicates within one producer are kept.
std::vector<std::vector<bool>> withoutDuplicates(
    const std::vector<std::vector<DuplicateCandidate>> &producers);
