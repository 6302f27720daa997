#pragma once

#include "sdk/image/RawImage.h"

#include <vector>

/// A picture with its bytes.
struct RolledPicture
{
    std::vector<std::uint8_t> bytes;
    RawImage raw;
};

/// Returns what a simulated line scan camera sees of its chart.
/// @param linesPerRow Lines that the camera takes while the object moves by one pixel.
/// @param jitter Standard deviation of the lines' places, in pixels.
RolledPicture rolled(
    int width, int height, double linesPerRow, double jitter = 0, std::uint32_t pixelFormat = 0x01080001);
