#pragma once

#include "tools/kit/measure/defects/DefectFindings.h"
#include "tools/kit/measure/defects/PixelStatistics.h"
#include "tools/kit/measure/run/MeasureContext.h"

/// Finds the pixels that deviate from their neighbours of the same colour. Three tests:
///
/// Dark and bright: the mean of a pixel minus the median of its neighbourhood (NeighbourMedian), divided by
/// the standard deviation that these differences have in a part of the picture with about 64 x 64 pixels of
/// the colour (RobustSpread). The deviation contains what remains of the noise and the
/// usual differences between good pixels (DSNU, PRNU), and at least the rounding error of the pixel values,
/// sqrt(1/12): EMVA Standard 1288, release 4.0, section 2.4.
///
/// Blinking: the variance of a pixel over the images, divided by the one that is expected: the median
/// variance of its part of the picture, plus the shot noise of a brighter pixel by the photon transfer
/// (variance = K * additional signal; EMVA 1288, section 6.6), plus changes of the temperature, which hot
/// pixels follow. This quotient has a chi-squared distribution, and is transformed to standard deviations of
/// a normal distribution: E. B. Wilson and M. M. Hilferty, "The Distribution of Chi-Square", PNAS 17 (1931).
///
/// Blinking is not judged if a pixel has fewer than PixelStatistics::minNoiseSamples values.
///
/// Both sets have the same layout, and one image or more.
/// @param progress Called with parts of the picture, several times for each; if it returns false, the
/// function returns no value.
std::optional<DefectFindings> findDefects(
    const PixelStatistics &dark, const PixelStatistics &bright, const MeasureProgress &progress);

/// With fewer images, the variance of a single pixel says little.
constexpr std::size_t minDefectImages = PixelStatistics::minNoiseSamples;
