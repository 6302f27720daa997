#pragma once

#include "tools/kit/measure/Measurements.h"
#include "tools/kit/picture/DisplaySettings.h"

#include <array>
#include <optional>
#include <vector>

/// Returns the curve that shows nearly all pixels between black and white: 0.1 % of a component's pixels may
/// be darker or brighter. The brightness of colour pictures is judged by all colours together. Returns a
/// neutral curve if all pixels have one value.
ContrastCurve automaticContrast(const Histogram &histogram);

/// Returns the brightness of a value, both as shares of their range.
double brightness(const ContrastCurve &curve, double share);

/// Returns the gamma for which the middle between black and white has this brightness.
double gammaForMiddle(double brightness);

/// Returns the factors of red, green and blue that make the mean of a patch grey, with 1 for green. Returns
/// nothing if the picture has no colours or a colour has the mean 0.
std::optional<std::array<double, 3>> greyPatchGains(const std::vector<ComponentStatistics> &statistics);
