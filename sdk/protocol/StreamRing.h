#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>

/// Where one chunk is in a buffer.
struct ChunkPosition
{
    std::uint64_t id = 0;
    std::uint64_t offset = 0; ///< Offset from the start of the buffer, in bytes.
    std::uint64_t length = 0; ///< Bytes.
};

/// What the host knows about the image in one buffer; see CvxCPP::ImageInfo. The library checks all values
/// before it uses them, because a faulty producer may have overwritten them.
struct ImageRecord
{
    static constexpr std::size_t maxChunks = 32;

    std::uint64_t imageOffset = 0; ///< Start of the picture in the buffer.
    std::uint64_t imageSize = 0; ///< Received bytes of the picture.
    std::uint64_t timestamp = 0; ///< Nanoseconds.
    std::uint64_t receivedAt = 0; ///< Nanoseconds of CLOCK_MONOTONIC after EventGetData returned the buffer.
    std::uint64_t frameId = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t offsetX = 0;
    std::uint32_t offsetY = 0;
    std::uint32_t paddingX = 0;
    std::uint32_t paddingY = 0;
    std::uint32_t pixelFormat = 0;
    std::uint32_t isBigEndian = 0;
    std::uint32_t isComplete = 0;
    std::uint32_t chunkCount = 0;
    std::array<ChunkPosition, maxChunks> chunks;
};

/// The memory that the library and a camera host share to exchange the buffers of one stream: a queue of
/// filled buffers, the buffers that the program has released, the records of the images, and counters. Lies
/// at the start of a memfd of `sizeof(StreamRing)` bytes; both sides map it for reading and writing. The
/// pixels are in another memfd, which the library maps read-only.
///
/// A buffer belongs either to the host or to the program. The host hands a buffer over with push(), the
/// program with release(). Only the owner of a buffer uses its memory and its record.
///
/// No function takes a lock, so a killed process cannot block the other one. Waiting uses futexes in the
/// shared memory.
class StreamRing
{
public:
    static constexpr std::uint32_t maxBuffers = 256;
    using Milliseconds = std::chrono::milliseconds;

    // ---- Functions of the host ----

    /// Hands over a filled buffer, and wakes a program that waits for one. One thread at a time may call
    /// push().
    void push(std::uint32_t buffer);

    /// Takes back the oldest buffer that the program has not taken yet. Returns nothing if there is none.
    std::optional<std::uint32_t> pop();

    /// Stores the released buffers as bits in `buffers` and clears them. Returns false if there are none.
    using BufferSet = std::array<std::uint64_t, maxBuffers / 64>;
    bool takeReleased(BufferSet &buffers);

    /// Waits until a buffer is released, at most for `timeout`. While nobody waits, release() makes no system
    /// call.
    void waitForRelease(Milliseconds timeout);

    // ---- Functions of the program ----

    // pop() takes the oldest filled buffer; several threads may call it. The result may be any number,
    // because the host may have damaged the memory.

    /// Returns false if the queue has numbers of entries that it cannot have, so that the host has damaged
    /// it.
    bool isPlausible() const;

    /// Waits until the queue is not empty or wakeProgram() is called, at most for `timeout`. May return
    /// early. If `signals` differs from the number of calls of wakeProgram(), returns at once.
    void waitForImage(Milliseconds timeout, std::uint32_t signals);

    /// Releases a buffer. Any thread may call release().
    void release(std::uint32_t buffer);

    /// Wakes all threads in waitForImage().
    void wakeProgram();
    std::uint32_t wakeSignals() const { return m_wakeSignals; }

    // ---- Records and counters ----

    ImageRecord &record(std::uint32_t buffer) { return m_records[buffer]; }
    const ImageRecord &record(std::uint32_t buffer) const { return m_records[buffer]; }

    /// The counters since the start of the stream; see CvxCPP::StreamStatistics. The host changes them.
    struct Counters
    {
        std::atomic<std::uint64_t> delivered{0};
        std::atomic<std::uint64_t> incomplete{0};
        std::atomic<std::uint64_t> lost{0};
        std::atomic<std::uint64_t> underruns{0};
        std::atomic<std::uint64_t> skipped{0};
        std::atomic<std::uint64_t> bytes{0};
    };
    Counters counters;

private:
    static constexpr std::uint32_t capacity = maxBuffers; // Every buffer fits into the queue.

    // Each block is in a cache line of its own, because different processes write to them.
    alignas(64) std::atomic<std::uint64_t> m_pushed{0}; // Number of buffers ever pushed.
    alignas(64) std::atomic<std::uint64_t> m_popped{0}; // Number of buffers ever popped.
    alignas(64) std::atomic<std::uint32_t> m_imageFutex{0}; // Changes with every push and every wake.
    std::atomic<std::uint32_t> m_imageWaiters{0};
    std::atomic<std::uint32_t> m_wakeSignals{0};
    alignas(64) std::atomic<std::uint32_t> m_releaseFutex{0}; // Changes with every release that wakes.
    std::atomic<std::uint32_t> m_releaseWaiters{0};
    std::array<std::atomic<std::uint64_t>, maxBuffers / 64> m_released{};
    alignas(64) std::array<std::atomic<std::uint32_t>, capacity> m_queue{};
    std::array<ImageRecord, maxBuffers> m_records{};
};
static_assert(
    std::atomic<std::uint64_t>::is_always_lock_free && std::atomic<std::uint32_t>::is_always_lock_free);
