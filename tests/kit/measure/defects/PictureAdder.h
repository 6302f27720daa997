#pragma once

#include "tools/kit/measure/defects/PixelStatistics.h"

// The simulator and the SDK have different classes with the name PixelFormat, so one file uses one of them.

void addPicture(PixelStatistics &statistics, const RawImage &picture);
