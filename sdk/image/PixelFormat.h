#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What the components of a pixel are.
enum class PixelKind : std::uint8_t
{
    Mono, ///< One grey value.
    Bayer, ///< One colour value per pixel, in a pattern of 2 x 2 pixels.
    Rgb, ///< Red, green and blue, and perhaps alpha.
    Yuv, ///< Luma and chroma.
    BiColor, ///< Two colour values per pixel, as of line scan cameras with two lines.
    Depth, ///< Coordinates, confidence or other data, whose first component can be shown as grey.
    Raw ///< The layout is unknown; only the number of bits is.
};

/// One row of the table of the GenICam Pixel Format Naming Convention (PFNC).
struct PixelFormat
{
    std::uint32_t code;
    const char *name;
    PixelKind kind;
    std::uint8_t depth; ///< Significant bits of a component.
    std::uint8_t components; ///< Components per pixel after unpacking: 1, 2, 3 or 4.
};

/// Returns the row of a PFNC code, or null if the code is not in the table.
const PixelFormat *findPixelFormat(std::uint32_t code);

/// Returns the row of a PFNC name or of one of the names that old cameras use, or null.
const PixelFormat *findPixelFormat(std::string_view name);

/// Returns the bits that a pixel occupies in memory, which every PFNC code tells.
constexpr unsigned bitsPerPixel(std::uint32_t code)
{
    return code >> 16U & 0xFFU;
}
