#pragma once

#include "sdk/image/FlatField.h"
#include "tools/kit/measure/flatfield/MeanImage.h"

#include <cstdint>

/// Which differences between pixels the gain of a flat field corrects.
enum class GainDetail : std::uint8_t
{
    EveryPixel, ///< Shading, and the sensitivity of each pixel.
    ShadingOnly ///< The large-scale shape only, which adds no noise of the bright images.
};

/// The level that each colour has after the correction. Neither changes the white balance.
enum class GainLevel : std::uint8_t
{
    Mean, ///< The mean of the colour: the brightness of the picture stays as it is.
    Brightest ///< The brightest place: no gain is below 1, so what is clipped stays clipped.
};

/// A correction, and what had to be limited.
struct BuiltFlatField
{
    FlatField field;
    std::uint32_t defectPixels = 0; ///< Pixels that got the gain of their neighbours.
    std::uint32_t limitedPixels = 0; ///< Pixels whose gain would have been beyond the limits.
    double lowestGain = 1;
    double highestGain = 1;
};

constexpr double minFlatFieldGain = 0.25;
constexpr double maxFlatFieldGain = 8;

/// Computes the correction of two points (two-point calibration): the offset of a pixel is its mean in the
/// dark images; its gain is the level of its colour divided by its mean in the bright images minus the
/// offset. A pixel whose offset or gain deviates strongly from the eight nearest pixels of its colour (for a
/// line scan sensor, the eight nearest in the line) is a defect and gets the median of their gains.
/// @param dark, bright Images of the same region and format.
BuiltFlatField buildFlatField(
    const MeanImage &dark, const MeanImage &bright, GainDetail detail, GainLevel level);

/// Applies the field to the mean of uncorrected images, without rounding and clipping.
MeanImage correctedMean(const MeanImage &image, const FlatField &field);
