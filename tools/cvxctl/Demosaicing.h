#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Returns the RGB image, 3 bytes per pixel without padding, of a Bayer mosaic whose first line starts with
/// red and green (PFNC BayerRG8). Each missing component is the rounded mean of its nearest neighbours, two
/// or four (bilinear interpolation); beyond the border, the mosaic is mirrored at its outermost pixels.
/// @param lineSize Bytes from one line to the next. The mosaic has at least 2 × 2 pixels.
std::vector<std::uint8_t> demosaicBayerRG8(
    const std::uint8_t *data, std::size_t width, std::size_t height, std::size_t lineSize);
