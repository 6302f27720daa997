#pragma once

#include "sdk/image/RawImage.h"

#include <array>
#include <optional>

enum class BayerColor : std::uint8_t
{
    Red,
    Green,
    Blue
};

/// The components of one pixel as the camera sent them.
struct RawValues
{
    std::array<double, 4> values{}; ///< In the order of ImageConverter::toWords(), at their full depth.
    unsigned count = 0; ///< Valid entries of `values`.
    std::optional<BayerColor> color; ///< Only for Bayer pictures: what the pixel shows.
};

/// Returns the components of the pixel, which must be inside the picture. Components that an incomplete
/// picture lacks are 0. Integers of 64 bits are rounded to the 53 bits of a double.
RawValues rawValues(const RawImage &picture, std::uint32_t x, std::uint32_t y);
