#pragma once

#include "sdk/producer/InfoOutput.h"
#include "sdk/producer/OpenCamera.h"

#include <memory>
#include <string>
#include <sys/mman.h>

/// One announced buffer of a data stream.
struct AnnouncedBuffer
{
    /// Who owns the buffer.
    enum class State : std::uint8_t
    {
        Unqueued, ///< The consumer.
        Input, ///< It waits in the input pool.
        Filling, ///< The image source.
        Output ///< It waits in the output queue.
    };
    struct Unmap
    {
        std::size_t size; // Bytes.
        void operator()(void *memory) const { munmap(memory, size); }
    };
    using Memory = std::unique_ptr<void, Unmap>;

    GenTL::BUFFER_HANDLE handle;
    void *data;
    std::size_t size;
    void *userPointer;
    Memory ownMemory; ///< Null if the consumer owns the memory.
    State state = State::Unqueued;
    bool hasNewData = false; ///< Filled since it was last queued.
    bool returnsToInput = false; ///< A flush wants it back in the input pool once the source has filled it.
    FilledImage image{};
};

/// What is the same for all buffers of a stream.
struct StreamTraits
{
    std::string tlType;
    std::uint64_t timestampFrequency; ///< Ticks per second, or 0 if the camera has no clock.
};

// These functions return GC_ERR_SUCCESS, GC_ERR_BUFFER_TOO_SMALL, or the code in their comment.

/// Writes the value of an info command to a complete output. Returns GC_ERR_NOT_IMPLEMENTED for an unknown
/// command, GC_ERR_NO_DATA if the buffer does not contain what the command asks for, and
/// GC_ERR_NOT_AVAILABLE if the camera has no clock.
GenTL::GC_ERROR writeBufferInfo(const AnnouncedBuffer &buffer, const StreamTraits &stream,
    GenTL::BUFFER_INFO_CMD command, const InfoOutput &output);

/// Copies the list of chunks. Without `chunks`, writes only their number to `count`, otherwise `count` is the
/// capacity. Returns GC_ERR_NO_DATA if there are no chunks, and GC_ERR_PARSING_CHUNK_DATA if a chunk lies
/// outside the data.
GenTL::GC_ERROR writeChunks(
    const AnnouncedBuffer &buffer, GenTL::SINGLE_CHUNK_DATA *chunks, std::size_t *count);
