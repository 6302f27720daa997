#include "sdk/camerahost/Picture.h"

#include <algorithm>

namespace {

std::uint64_t toBytes(std::uint64_t bits)
{
    return (bits + 7) / 8;
}

bool isExact(const Picture &picture, std::uint64_t received)
{
    return received > 0 && (picture.size() == received || picture.tightSize() == received);
}

bool fits(const Picture &picture, std::uint64_t received)
{
    return picture.tightSize() > 0 && picture.tightSize() <= received;
}

Picture withReceivedLines(Picture picture, std::uint64_t received)
{
    const std::uint64_t line
        = toBytes(std::uint64_t(picture.width) * picture.bitsPerPixel()) + picture.paddingX;
    if (line > 0)
        picture.height = static_cast<std::uint32_t>(std::min<std::uint64_t>(picture.height, received / line));
    picture.paddingY = 0;
    return picture;
}

} // namespace

std::uint64_t Picture::size() const
{
    const std::uint64_t line = toBytes(std::uint64_t(width) * bitsPerPixel());
    return line == 0 || height == 0 ? 0 : (line + paddingX) * height + paddingY;
}

std::uint64_t Picture::tightSize() const
{
    if (paddingX != 0 || paddingY != 0)
        return size();
    return toBytes(std::uint64_t(width) * height * bitsPerPixel());
}

std::uint32_t toPixelFormat(std::uint64_t code)
{
    const std::uint64_t components = (code >> 24U) & 0x7FU; // 1: one component per pixel, 2: several.
    const std::uint64_t bits = (code >> 16U) & 0xFFU;
    const bool isCode = code >> 32U == 0 && (components == 1 || components == 2) && bits != 0;
    return isCode ? static_cast<std::uint32_t>(code) : 0;
}

Picture choosePicture(const Picture &reported, const Picture &configured, std::uint64_t received)
{
    if (isExact(reported, received))
        return reported;
    if (isExact(configured, received))
        return configured;
    if (fits(reported, received))
        return reported;
    if (fits(configured, received))
        return configured;
    return withReceivedLines(reported, received);
}
