#include "sdk/image/PictureGeometry.h"

#include <algorithm>

namespace {

std::size_t bytesOf(std::size_t bits)
{
    return (bits + 7) / 8;
}

std::size_t chromaLines(Planes planes, std::size_t height)
{
    if (planes == Planes::Semiplanar420)
        return (height + 1) / 2;
    return planes == Planes::Semiplanar422 ? height : 0;
}

/// Returns the components of one line of the first plane.
std::size_t componentsOfLine(const PixelLayout &layout, std::size_t width, std::size_t lineBytes)
{
    const Arrangement &arrangement = layout.arrangement;
    if (layout.planes != Planes::Interleaved || layout.packing == Packing::Unknown)
        return width;
    const std::size_t groups = (width + arrangement.pixels - 1) / arrangement.pixels;
    const std::size_t whole = groups * arrangement.components;
    if (layout.packing == Packing::Rgb10p32 || layout.packing == Packing::Rgb565)
        return whole;
    return std::min(whole, 8 * lineBytes / layout.componentBits());
}

} // namespace

PictureGeometry::PictureGeometry(const RawImage &picture, const PixelLayout &layout)
    : m_planes(layout.planes), m_height(picture.height)
{
    const std::size_t width = picture.width;
    const std::size_t pixelBits = storedBitsPerPixel(picture.pixelFormat);
    const bool isInterleaved = layout.planes == Planes::Interleaved;
    const std::size_t lineBytes = bytesOf(width * (isInterleaved ? pixelBits : layout.componentBits()));
    const std::size_t planeCount = layout.planes == Planes::Planar ? layout.arrangement.components : 1;
    m_chromaComponents = 2 * ((width + 1) / 2);
    m_lineComponents = componentsOfLine(layout, width, lineBytes);

    const std::size_t padding = picture.paddingX;
    const std::size_t paddedSize = (lineBytes + padding) * m_height * planeCount
        + (m_chromaComponents + padding) * chromaLines(layout.planes, m_height);
    const bool hasGaps = picture.size == paddedSize || picture.size != bytesOf(width * m_height * pixelBits);
    m_isAligned = hasGaps || (layout.packing != Packing::Bits && layout.packing != Packing::Pairs);
    m_lineBytes = lineBytes + (hasGaps ? padding : 0);
    m_chromaBytes = m_chromaComponents + (hasGaps ? padding : 0);
    if (!m_isAligned)
        m_lineComponents = width * pixelBits / layout.componentBits();
}

LinePlace PictureGeometry::line(unsigned plane, std::uint32_t y) const
{
    if (!m_isAligned)
        return {0, y * m_lineComponents, m_lineComponents};
    if (plane == 0)
        return {y * m_lineBytes, 0, m_lineComponents};
    const std::size_t planeBytes = m_height * m_lineBytes;
    if (m_planes == Planes::Planar)
        return {plane * planeBytes + y * m_lineBytes, 0, m_lineComponents};
    const std::size_t chromaLine = m_planes == Planes::Semiplanar420 ? y / 2 : y;
    return {planeBytes + chromaLine * m_chromaBytes, 0, m_chromaComponents};
}
