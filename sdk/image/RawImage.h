#pragma once

#include "CvxCPP/Image.h"

#include <cstddef>
#include <cstdint>

/// The bytes of a picture as the camera sent them, and what they mean. The bytes belong to someone else.
struct RawImage
{
    const std::uint8_t *data = nullptr;
    std::size_t size = 0; ///< Bytes; an incomplete image may have fewer than its lines need.
    std::uint32_t width = 0; ///< Pixels.
    std::uint32_t height = 0; ///< Lines.
    std::uint32_t paddingX = 0; ///< Bytes after each line.
    std::uint32_t pixelFormat = 0; ///< PFNC code.
    bool isBigEndian = false; ///< True if words of 16 bits and more have their highest byte first.
};

/// Returns the picture of an image, which must outlive the returned view.
inline RawImage rawImage(const CvxCPP::Image &image)
{
    const CvxCPP::ImageInfo &info = image.GetInfo();
    return {image.GetData(), image.GetSize(), info.width, info.height, info.paddingX, info.pixelFormat,
        info.isBigEndian};
}

/// A rectangle of pixels.
struct Region
{
    std::uint32_t x = 0;
    std::uint32_t y = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};
