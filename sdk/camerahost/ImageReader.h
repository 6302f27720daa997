#pragma once

#include "sdk/camerahost/AnnouncedBuffers.h"
#include "sdk/camerahost/BufferInfo.h"
#include "sdk/camerahost/PictureReader.h"

#include <chrono>
#include <cstdint>
#include <optional>

/// What is known about the images of a stream before the first one arrives.
struct ImageSetup
{
    PictureLayout configured; ///< What the camera is configured for.
    std::uint64_t ticksPerSecond = 0; ///< Frequency of the camera's clock; 0 if unknown.
    bool hasChunks = false;
};

/// Fills the records of images. Tolerates producers that fail to answer or answer nonsense: what a record
/// contains always lies within the buffer. Use each object on one thread.
class ImageReader
{
public:
    ImageReader(const DeviceLibrary &library, GenTL::DS_HANDLE stream, const AnnouncedBuffers &buffers,
        const ImageSetup &setup);

    /// Fills the record of the image in a buffer, and copies the image if necessary. Returns the frame ID if
    /// the producer knows it.
    std::optional<std::uint64_t> read(std::uint32_t buffer, ImageRecord &record);

private:
    using Clock = std::chrono::steady_clock;

    void setLayout(const PictureLayout &layout, ImageRecord &record) const;
    void readChunks(
        const BufferInfo &info, std::uint32_t buffer, std::uint64_t filled, ImageRecord &record) const;
    std::size_t askForChunks(std::uint32_t buffer, ImageRecord &record) const;
    std::optional<std::uint64_t> cameraTime(const BufferInfo &info) const;
    std::uint64_t timestamp(std::optional<std::uint64_t> cameraTime);

    const DeviceLibrary &m_library;
    const GenTL::DS_HANDLE m_stream;
    const AnnouncedBuffers &m_buffers;
    const ImageSetup m_setup;
    PictureReader m_pictures;
    PictureLayout m_layout; // Layout of the last complete image.
    BufferInfo::Unsupported m_unsupported = 0;
    std::uint64_t m_clockDifference = 0; // The camera's clock minus our clock, in nanoseconds.
};
