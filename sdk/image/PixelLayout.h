#pragma once

#include "sdk/image/PixelFormat.h"

#include <array>

/// How components lie in memory.
enum class Packing : std::uint8_t
{
    Bits, ///< A stream of bits, the lowest bits of a byte first, without gaps between components.
    Bytes, ///< One byte each.
    Words, ///< Two bytes each, with the value in the lowest bits.
    Pairs, ///< Two components in three bytes: high bits of the first, low bits of both, high bits of the
           ///< second.
    Wide, ///< Integers or floating-point numbers of 32 or 64 bits.
    Rgb10p32, ///< Three components of 10 bits in 32 bits.
    Rgb565, ///< Components of 5, 6 and 5 bits in 16 bits.
    Unknown
};

/// How the bits of a component are read.
enum class Number : std::uint8_t
{
    Unsigned,
    Signed,
    Float
};

/// How the channels of a picture are distributed.
enum class Planes : std::uint8_t
{
    Interleaved,
    Planar, ///< One plane per channel.
    Semiplanar420, ///< A plane of luma, then a plane of both chromas at half the width and height.
    Semiplanar422 ///< The same with chroma at half the width only.
};

/// Weights and ranges of luma and chroma.
enum class YuvStandard : std::uint8_t
{
    Bt601Full, ///< All values from 0 to the highest one.
    Bt601, ///< Luma 16 to 235 and chroma 16 to 240, as in the two below.
    Bt709,
    Bt2020
};

/// Which components of a group of pixels belong to a pixel. Pixels of a group can share components.
struct Arrangement
{
    std::uint8_t pixels = 1; ///< Pixels of a group: 1, 2 or 4.
    std::uint8_t components = 1; ///< Components of a group.
    /// For each channel (grey; red, green, blue, alpha; luma, U or Cb, V or Cr) the component of each pixel.
    std::array<std::array<std::uint8_t, 4>, 4> positions{};
};

/// All that is needed to read pixels of a format.
struct PixelLayout
{
    PixelFormat format;
    Packing packing;
    Number number = Number::Unsigned;
    Planes planes = Planes::Interleaved;
    Arrangement arrangement;
    YuvStandard standard = YuvStandard::Bt601Full; ///< Only for luma and chroma.
    std::uint8_t redX = 0; ///< Only for Bayer patterns: column and line of the first red pixel.
    std::uint8_t redY = 0;

    /// Returns the bits that a component occupies in memory.
    unsigned componentBits() const;

    /// Returns 1 if the screen shows the format as grey, otherwise 3.
    unsigned screenChannels() const;
};

/// Returns the layout of a PFNC code. For a code that is not in the table, its packing is Unknown.
const PixelLayout &findPixelLayout(std::uint32_t code);

/// All layouts.
struct PixelLayoutTable
{
    const PixelLayout *first;
    const PixelLayout *last; ///< One past the end.
    const PixelLayout *begin() const { return first; }
    const PixelLayout *end() const { return last; }
};
PixelLayoutTable pixelLayouts();
