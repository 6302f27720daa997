#pragma once

#include "sdk/camerahost/BufferInfo.h"
#include "sdk/camerahost/Picture.h"

#include <cstdint>
#include <optional>

/// The picture in one buffer.
struct PictureLayout
{
    Picture picture;
    std::uint64_t imageOffset = 0; ///< Start of the picture in the buffer.
    std::uint64_t received = 0; ///< Bytes of the picture that were received.
    std::uint32_t offsetX = 0; ///< Position of the region on the sensor.
    std::uint32_t offsetY = 0;
    bool isBigEndian = false;
};

/// Finds out where the picture is in a complete buffer and how it is laid out. What the producer does not
/// tell, or tells wrongly, is taken from the configuration of the camera.
class PictureReader
{
public:
    explicit PictureReader(const PictureLayout &configured) : m_configured(configured) { }

    /// @param base Address of the buffer.
    /// @param filled Bytes in the buffer.
    PictureLayout read(const BufferInfo &info, const std::uint8_t *base, std::uint64_t filled);

private:
    PictureLayout readSingle(const BufferInfo &info, std::uint64_t filled);
    PictureLayout readPart(
        const BufferInfo &info, std::uint32_t part, const std::uint8_t *base, std::uint64_t filled) const;

    /// What a producer tells about a picture and what can only change together with the rest.
    struct Format
    {
        std::uint64_t width = 0;
        std::uint64_t height = 0;
        std::uint64_t pixelFormat = 0;
    };
    void readFormatDetails(const BufferInfo &info);

    const PictureLayout m_configured;
    Format m_format; // Format of the previous picture.
    Picture m_details; // Its padding and its pixel format.
    bool m_isPfnc = true; // The codes of pixel formats are PFNC codes.
    bool m_isBigEndian = false;
    bool m_hasDetails = false;
};
