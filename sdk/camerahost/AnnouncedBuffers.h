#pragma once

#include "sdk/camerahost/DeviceLibrary.h"
#include "sdk/camerahost/StreamMapping.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>

/// The buffers of one stream, announced to the producer. A buffer is either queued, which means that the
/// producer owns it, or not. Buffer n uses the memory of the stream's buffer n. If the producer insists on
/// memory of its own, each image is copied.
class AnnouncedBuffers
{
public:
    AnnouncedBuffers(const DeviceLibrary &library, GenTL::DS_HANDLE stream, const StreamMapping &memory);

    /// Announces the buffers, at least `minimum` of them; fewer than all if the producer has no more memory.
    std::optional<Problem> announce(std::uint32_t minimum);

    /// Returns the number of announced buffers.
    std::uint32_t size() const { return m_size; }

    /// Passes a buffer to the producer. Returns false if the producer does not accept it. Several threads may
    /// queue different buffers.
    bool queue(std::uint32_t index);

    /// Takes a buffer that the producer has filled. Returns nothing if there is no such buffer or if it is
    /// not queued, because a producer may report a buffer twice.
    std::optional<std::uint32_t> take(GenTL::BUFFER_HANDLE handle);

    /// Returns the number of buffers that the producer owns.
    std::uint32_t queued() const { return m_queued; }

    GenTL::BUFFER_HANDLE handle(std::uint32_t index) const { return m_buffers[index].handle; }

    /// Returns where the producer writes the buffer, and how many bytes it may write there.
    const std::uint8_t *data(std::uint32_t index) const { return m_buffers[index].data; }
    std::size_t capacity(std::uint32_t index) const { return m_buffers[index].capacity; }

    /// Copies an image from the producer's own memory, if it has insisted on it.
    void copyToStream(std::uint32_t index, std::size_t size) const;

    /// Takes all buffers back. Returns false if the producer still knows one of them, so that its memory has
    /// to stay until the stream is closed.
    bool revoke();

private:
    struct Buffer
    {
        GenTL::BUFFER_HANDLE handle = nullptr;
        const std::uint8_t *data = nullptr;
        std::size_t capacity = 0;
        std::atomic<bool> isQueued{false};
    };

    std::optional<Problem> announceOwn();
    std::optional<Problem> announceForeign();
    std::optional<Problem> findForeignMemory(Buffer &buffer) const;
    std::uint32_t indexOf(GenTL::BUFFER_HANDLE handle) const;

    const DeviceLibrary &m_library;
    const GenTL::DS_HANDLE m_stream;
    const StreamMapping &m_memory;
    std::array<Buffer, StreamRing::maxBuffers> m_buffers;
    std::uint32_t m_size = 0;
    std::uint32_t m_lastTaken = 0; // Producers fill their buffers in turn, so the search starts here.
    std::atomic<std::uint32_t> m_queued{0};
};
