#pragma once

#include "sdk/image/RawImage.h"

#include <array>
#include <cstdint>

/// Whether a part of a picture can serve to find the white balance.
enum class GreyPatch : std::uint8_t
{
    Usable,
    WithoutColor, ///< The format has only grey values.
    TooDark, ///< A component is, on average, below 2 % of its range.
    Clipped ///< More than 1 % of the pixels are at the highest value of a component.
};

struct WhiteBalance
{
    GreyPatch patch = GreyPatch::Usable;
    std::array<double, 3> gains = {1, 1, 1}; ///< Red, green (always 1) and blue; all 1 unless usable.
};

/// Returns the gains that make the region grey on average. The region lies inside the picture.
WhiteBalance whiteBalance(const RawImage &picture, const Region &region);
