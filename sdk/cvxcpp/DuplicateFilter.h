#pragma once

#include "sdk/cvxcpp/CameraList.h"

#include <vector>

/// Returns the camera lists, given one per producer in the search order, without the cameras that an earlier
/// producer reports too. Two cameras are the same if their vendors, models and serial numbers are equal,
/// without regard to ASCII letter case and surrounding white space; a camera that lacks one of the three
/// equals no other. Nothing is left out within one producer. A list that loses nothing is returned as it is.
std::vector<CameraList::Pointer> withoutDuplicates(const std::vector<CameraList::Pointer> &lists);
