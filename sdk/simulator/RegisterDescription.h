#pragma once

#include "sdk/simulator/CameraModel.h"

#include <string>

/// Returns the register description (GenICam XML) of a camera, in the form in which the camera contains it.
std::string registerDescription(const CameraModel &model);

/// Returns the file name of the description.
std::string registerDescriptionName(const CameraModel &model);
