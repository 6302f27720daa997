#pragma once

#include "tools/kit/measure/Measurements.h"

/// Returns the nearest pixels to points on the line that are one pixel apart, beginning with its start.
/// Pixels that an incomplete picture lacks, and what is not a number, are left out.
LineProfile sampleLine(const RawImage &picture, const MeasuredLine &line);
