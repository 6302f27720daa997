#pragma once

#include "sdk/protocol/StreamRing.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

/// The memory of one stream: the pixels, which the library only reads, and the StreamRing. Each image keeps a
/// reference, so the memory exists until the last image of the stream is released, also if its host has
/// ended.
class StreamMemory
{
public:
    /// Creates memory for `buffers` buffers of `bufferSize` bytes. Returns null if there is not enough
    /// memory, or no descriptor is left.
    static std::shared_ptr<StreamMemory> create(std::uint32_t buffers, std::uint64_t bufferSize);
    StreamMemory(std::uint32_t buffers, std::uint64_t bufferSize);
    ~StreamMemory();
    StreamMemory(const StreamMemory &) = delete;
    StreamMemory &operator=(const StreamMemory &) = delete;

    std::uint32_t buffers() const { return m_buffers; }
    std::uint64_t bufferSize() const { return m_bufferSize; }
    const std::uint8_t *buffer(std::uint32_t buffer) const { return m_pixels.data + buffer * m_bufferSize; }
    StreamRing &ring() const { return *m_ring; }

    /// Returns the descriptors for the host: that of the pixels, then that of the ring.
    std::vector<int> descriptors() const { return {m_pixels.descriptor, m_ringBytes.descriptor}; }
    /// Call this function when the host has the descriptors. The memory stays mapped.
    void closeDescriptors();

    /// Marks a buffer from the queue as held by the program. Returns false if the host has damaged the queue:
    /// there is no such buffer, or the program holds it already.
    bool claim(std::uint32_t buffer);
    /// Returns a claimed buffer to the host. Any thread may call this function.
    void release(std::uint32_t buffer);

    /// Copies the record of a claimed buffer. Returns nothing if the record is damaged: the picture or a
    /// chunk is not in the buffer.
    std::optional<ImageRecord> record(std::uint32_t buffer) const;

private:
    /// A memfd that is mapped completely.
    struct Mapping
    {
        int descriptor = -1;
        std::uint8_t *data = nullptr;
        std::size_t size = 0;

        bool create(const char *name, std::size_t bytes, int protection);
        void closeDescriptor();
        void destroy();
    };

    const std::uint32_t m_buffers;
    const std::uint64_t m_bufferSize;
    Mapping m_pixels;
    Mapping m_ringBytes;
    StreamRing *m_ring = nullptr; // Lies in m_ringBytes.
    std::vector<std::atomic<bool>> m_isHeld; // One element for each buffer.
};
