#pragma once

#include "CvxCPP/Node.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace CvxCPP {

/// What is known about one image. Sizes are in bytes, lengths in pixels.
struct ImageInfo
{
    std::uint32_t width = 0;
    std::uint32_t height = 0; ///< Number of lines that were delivered.
    std::uint32_t offsetX = 0; ///< Position of the region on the sensor.
    std::uint32_t offsetY = 0;
    std::uint32_t paddingX = 0; ///< Bytes after each line.
    std::uint32_t paddingY = 0; ///< Bytes after the last line.
    /// Code of the GenICam Pixel Format Naming Convention (PFNC), for example 0x01080001 for Mono8; 0 if the
    /// producer reports a format of another convention. Bits 16 to 23 are the bits per pixel in memory.
    std::uint32_t pixelFormat = 0;
    bool isBigEndian = false; ///< True if words of 16 bits and more have their highest byte first.
    bool isComplete = true; ///< False if data of the image was lost.
    std::uint64_t timestamp = 0; ///< Nanoseconds of the camera's clock, or of ours if the camera has none.
    /// Nanoseconds of this machine's CLOCK_MONOTONIC when the producer reported the image.
    std::uint64_t receivedAt = 0;
    std::uint64_t frameId = 0; ///< Number of the image as the camera or the producer counts.
};

/// The value of one chunk feature of an image, for example "ChunkExposureTime".
struct ChunkValue
{
    std::string name;
    NodeValue value;
};

/// One image of a stream. The image occupies one buffer of the stream until the last reference to it is
/// released; it stays valid after the stream and the device were closed. Every function may be called from
/// any thread and returns immediately.
class Image
{
public:
    virtual ~Image() = default;

    /// Returns the first byte of the picture. The memory is read-only and has GetSize() bytes.
    virtual const std::uint8_t *GetData() const = 0;

    /// Returns the number of bytes of the picture that were received, at most the size of a buffer. An image
    /// that is not complete may have fewer bytes than its width, height and format need.
    virtual std::size_t GetSize() const = 0;

    virtual const ImageInfo &GetInfo() const = 0;

    /// Returns the chunk features that the camera sent with the image; empty if there are none.
    virtual std::vector<ChunkValue> GetChunks() const = 0;
};

} // namespace CvxCPP
