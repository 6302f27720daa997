#pragma once

#include "tools/kit/measure/flatfield/ChannelMosaic.h"

#include <cstdint>
#include <vector>

/// The mean of several images, and the temporal noise of its pixels.
struct MeanImage
{
    ChannelMosaic mosaic;
    std::uint32_t offsetX = 0; ///< Place on the sensor.
    std::uint32_t offsetY = 0;
    unsigned depth = 0; ///< Significant bits of the values.
    std::vector<float> values; ///< Line by line.
    std::vector<double> temporalVariance; ///< For each channel: of one image, averaged over the pixels.
    double samples = 0; ///< Values that were averaged for each pixel.

    double maxValue() const { return static_cast<double>((1U << depth) - 1); }
};
