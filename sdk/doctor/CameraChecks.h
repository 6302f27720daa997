#pragma once

#include "sdk/doctor/Finding.h"
#include "sdk/doctor/Machine.h"

/// Checks that every GigE camera can be reached, answers, and is free.
Findings checkCameras(const Machine &machine);

/// Checks that no two devices use the address of a camera.
Findings checkConflicts(const Machine &machine);
