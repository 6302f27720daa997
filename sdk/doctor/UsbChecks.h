#pragma once

#include "sdk/doctor/FileTree.h"
#include "sdk/doctor/Finding.h"

/// Checks permission, speed and use of every USB3 Vision camera, and the memory limit of USB transfers.
Findings checkUsb(const FileTree &files);
