#pragma once

#include <cstdint>

/// The layout of a picture in a buffer.
struct Picture
{
    static constexpr std::uint64_t maxLength = 1U << 24; ///< Largest width or height that can be true.

    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t paddingX = 0; ///< Bytes after each line.
    std::uint32_t paddingY = 0; ///< Bytes after the last line.
    std::uint32_t pixelFormat = 0; ///< PFNC code; 0 if unknown.

    std::uint32_t bitsPerPixel() const { return (pixelFormat >> 16U) & 0xFFU; }

    /// Returns the bytes of the whole picture if each line starts at a byte of its own; 0 if unknown.
    std::uint64_t size() const;

    /// Returns the bytes of the whole picture if the lines follow each other without gaps; 0 if unknown.
    std::uint64_t tightSize() const;
};

/// Returns the code if it can be a PFNC code, otherwise 0.
std::uint32_t toPixelFormat(std::uint64_t code);

/// Returns the layout that fits to the received bytes. A producer may report a layout from before the last
/// change of the camera's settings, so the layout that the camera is configured for is used if only that one
/// fits. If none fits, returns the reported one with the lines that were received.
/// @param received Bytes of the picture that were received.
Picture choosePicture(const Picture &reported, const Picture &configured, std::uint64_t received);
