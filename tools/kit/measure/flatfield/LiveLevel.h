#pragma once

#include "sdk/image/ImageConverter.h"

#include <optional>

/// How bright one image is.
struct LiveLevel
{
    double share = 0; ///< Mean of the brightest colour, as a share of the range.
    double clippedShare = 0; ///< Share of the values that are the highest possible one.
};

/// Measures an image from at most 128 of its lines, so it takes the same short time for every size. Returns
/// nothing for formats that cannot be corrected.
std::optional<LiveLevel> measureLiveLevel(const RawImage &picture, ImageConverter &converter);
