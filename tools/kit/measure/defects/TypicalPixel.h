#pragma once

#include "tools/kit/measure/defects/PixelStatistics.h"

#include <cstdint>
#include <vector>

/// Mean and variance of good pixels of one colour, which defects do not influence.
struct TypicalPixel
{
    double mean = 0; ///< Median of the pixels' means.
    double variance = 0; ///< Over the images; see typicalVariance().
};

/// Returns the typical pixel of the colour that the pixel (firstX, firstY) has, from a sample of all pixels.
TypicalPixel typicalPixel(const PixelStatistics &statistics, std::uint32_t firstX, std::uint32_t firstY);

/// Returns the variance over the images that corresponds to the median of some pixels' squares(). The median
/// of a chi-squared distribution is lower than its mean, which is taken into account. Changes the order.
double typicalVariance(const PixelStatistics &statistics, std::vector<float> &squares);

/// Returns the parameter of the transformation of Wilson and Hilferty, 2 / (9 n) for n degrees of freedom:
/// the cube root of a variance divided by its expectation has the mean 1 - parameter and this variance. n is
/// the number of samples less one, but at most 100, because the expectation itself is not exact.
double chiSquaredParameter(const PixelStatistics &statistics);
