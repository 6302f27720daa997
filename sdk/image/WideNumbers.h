#pragma once

#include "sdk/image/PictureGeometry.h"

#include <array>
#include <cstring>

/// Returns the unsigned integer of `Integer`'s size at `bytes`.
template <typename Integer>
Integer integerAt(const std::uint8_t *bytes, bool isBigEndian)
{
    Integer value = 0;
    for (std::size_t i = 0; i < sizeof(Integer); ++i) {
        const std::size_t place = isBigEndian ? sizeof(Integer) - 1 - i : i;
        value = static_cast<Integer>(value | static_cast<Integer>(bytes[i]) << (8 * place));
    }
    return value;
}

/// Returns the floating-point number of 32 or 64 bits at `bytes`.
double floatAt(const std::uint8_t *bytes, unsigned bits, bool isBigEndian);

/// The finite numbers of a component.
struct FloatRange
{
    double lowest = 0;
    double highest = 0;

    /// Returns the place of the number in the range: 0 for the lowest one, 1 for the highest one, and 0 for
    /// what is not a number.
    double share(double number) const;
};

/// Returns the ranges of the components of a picture of floating-point numbers, without those that an
/// incomplete picture lacks.
std::array<FloatRange, 4> findFloatRanges(
    const RawImage &picture, const PixelLayout &layout, const PictureGeometry &geometry);
