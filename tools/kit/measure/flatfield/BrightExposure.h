#pragma once

#include "tools/kit/measure/run/MeasureContext.h"

/// Sets the exposure time so that the brightest colour has bestLevel of the range, but no large part of the
/// picture more than 90 %. Takes some images. Returns why that is not possible.
/// @param darkLevel Value of a dark pixel.
Sentence setBrightExposure(const MeasureContext &context, double darkLevel, bool isLineScan);
