#pragma once

#include "sdk/cvxcpp/CameraList.h"

#include <vector>

/// Takes one camera list for each producer, in the search order, and returns the lists without the cameras
/// that an earlier producer also reports. Two cameras are the same if their vendors, models and serial
/// numbers are equal; ASCII letter case and surrounding white space are ignored. A camera that lacks one of
/// the three fields is never a duplicate. Duplicates within one producer are kept. A list without
/// duplicates is returned unchanged.
std::vector<CameraList::Pointer> withoutDuplicates(const std::vector<CameraList::Pointer> &lists);
