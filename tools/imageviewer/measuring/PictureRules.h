#pragma once

#include "tools/kit/measure/Measurements.h"
#include "tools/kit/picture/DisplaySettings.h"

#include <array>

/// Returns the curve with the black and white points that fit to a histogram: of each component, 0.1 % of the
/// pixels may be darker and 0.1 % brighter. The gamma stays. Red, green and blue are multiplied by their
/// gains before; the chroma of luma and chroma is left out.
ContrastCurve fittedContrast(
    const Histogram &histogram, const std::array<double, 3> &gains, const ContrastCurve &present);

/// Returns the gamma for which the middle between black and white has this brightness.
double gammaForMiddle(double brightness);
