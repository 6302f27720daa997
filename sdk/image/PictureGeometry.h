#pragma once

#include "sdk/image/PixelLayout.h"
#include "sdk/image/RawImage.h"

/// Returns the bits per pixel of any code. A code that is no pixel format and has none counts as bytes.
constexpr unsigned storedBitsPerPixel(std::uint32_t code)
{
    return bitsPerPixel(code) == 0 ? 8 : bitsPerPixel(code);
}

/// Where the components of a line lie.
struct LinePlace
{
    std::size_t offset = 0; ///< First byte of the line, or of the picture if lines are not aligned to bytes.
    std::size_t first = 0; ///< Index of the line's first component, counted from `offset`.
    std::size_t count = 0; ///< Components of the line. The last group of pixels can lack some.
};

/// Computes where the lines of a picture lie. Lines start at whole bytes and are followed by padding; but if
/// the size of the picture only matches lines without gaps, they have none.
class PictureGeometry
{
public:
    PictureGeometry() = default;
    PictureGeometry(const RawImage &picture, const PixelLayout &layout);

    /// Returns the place of line `y` of the picture. Only planar pictures have a plane other than 0: one per
    /// colour, or one with both chromas.
    LinePlace line(unsigned plane, std::uint32_t y) const;

private:
    Planes m_planes = Planes::Interleaved;
    bool m_isAligned = true;
    std::size_t m_height = 0;
    std::size_t m_lineBytes = 0; ///< Distance of two lines.
    std::size_t m_lineComponents = 0;
    std::size_t m_chromaBytes = 0; ///< Distance of two lines of the plane of chroma.
    std::size_t m_chromaComponents = 0;
};
