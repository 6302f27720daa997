#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// A pixel format that the simulator offers.
struct PackedFormat
{
    enum class Layout
    {
        Bytes, ///< 8 bits per value.
        Words, ///< 16 bits per value, little endian, value in the low bits.
        BitStream, ///< First pixel in the lowest bits of the first byte ("p").
        Packed ///< Two pixels in three bytes, with the low bits of both in the middle byte ("Packed").
    };
    enum class Colors
    {
        Mono,
        Bayer,
        Rgb
    };
    std::uint32_t code; ///< PFNC.
    const char *name;
    int depth; ///< Bits per value.
    Layout layout;
    Colors colors;

    int maxValue() const { return (1 << depth) - 1; }
    std::size_t bitsPerPixel() const { return code >> 16 & 0xFF; }
    std::size_t lineSize(int width) const
    {
        return (static_cast<std::size_t>(width) * bitsPerPixel() + 7) / 8;
    }
};

/// Returns all formats. Monochrome sensors offer those with Colors::Mono, colour sensors the other ones.
const std::vector<PackedFormat> &supportedPixelFormats();

/// Returns the format with the PFNC code, which must be one of supportedPixelFormats().
const PackedFormat &pixelFormat(std::uint32_t code);

/// Packs the values of one line, `width` of them or three times as many for RGB, into lineSize() bytes.
void packLine(const PackedFormat &format, const std::uint16_t *values, int width, std::uint8_t *line);
