#pragma once

#include <cstdint>
#include <vector>

/// Offset and gain of every pixel: corrected = (value - offset) * gain + blackLevel. Values have the unit of
/// the pixel format for which the field was measured, with `depth` bits.
struct FlatField
{
    std::uint32_t offsetX = 0; ///< Place of the field on the sensor.
    std::uint32_t offsetY = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0; ///< 1 for a line scan sensor; the line applies to all lines of a picture.
    unsigned depth = 0; ///< Significant bits of the values, 8 to 16. Other depths are scaled to this one.
    double blackLevel = 0; ///< The value that a dark pixel has after the correction.
    std::vector<float> offset; ///< Value of each pixel in the dark, line by line.
    std::vector<float> gain; ///< Factor of each pixel, about 1.

    bool isLineScan() const { return height == 1; }
};
