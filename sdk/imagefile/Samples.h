#pragma once

#include <cstddef>
#include <cstdint>

/// Pixels as an image file stores them: lines without padding, samples of 8, 16 or 32 bits in the byte order
/// of this machine. The memory belongs to someone else.
struct Samples
{
    const std::uint8_t *data = nullptr;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    unsigned channels = 1; ///< Samples per pixel.
    unsigned bits = 8; ///< Bits of a sample: 8, 16, or 32 for floating-point numbers.
    unsigned significantBits = 8; ///< How many of them the camera has measured.
    bool isSigned = false; ///< True if the samples are in two's complement.
    bool isFloat = false; ///< True if the samples are floating-point numbers of 32 bits.
    bool isColor = false; ///< True if the first three channels are red, green and blue.

    std::size_t lineSize() const { return std::size_t(width) * channels * bits / 8; }
    std::size_t size() const { return lineSize() * height; }
};
