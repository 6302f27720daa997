#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

// The cameras that a producer can open. Each producer implements OpenCamera and ImageSource; the exported
// functions implement everything that GenTL asks for beyond them: handles, buffers, queues and events.

/// A failure that the consumer gets as a GenTL error code with a text.
class GenTlError : public std::runtime_error
{
public:
    GenTlError(GenTL::GC_ERROR code, const std::string &text) : std::runtime_error(text), m_code(code) { }
    GenTL::GC_ERROR code() const { return m_code; }

private:
    GenTL::GC_ERROR m_code;
};

/// What a producer knows about a filled buffer; see GenTL::BUFFER_INFO_CMD. A picture without width is
/// reported as "no image present".
struct FilledImage
{
    std::size_t sizeFilled = 0; ///< Bytes that were written.
    /// Bytes that the camera has sent; more than the buffer holds if it is too small.
    std::size_t dataSize = 0;
    std::size_t imageOffset = 0;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t offsetX = 0;
    std::size_t offsetY = 0;
    std::size_t paddingX = 0;
    std::size_t paddingY = 0;
    std::uint64_t pixelFormat = 0; ///< PFNC code.
    std::uint64_t frameId = 0;
    std::uint64_t timestamp = 0; ///< Ticks of the camera; OpenCamera::timestampFrequency() per second.
    std::size_t payloadType = GenTL::PAYLOAD_TYPE_IMAGE;
    bool isIncomplete = false;
    std::vector<GenTL::SINGLE_CHUNK_DATA> chunks; ///< Offsets from the start of the buffer.
};

/// The announced buffers of one data stream, as an image source sees them. Any thread may call the functions.
class BufferQueue
{
public:
    virtual ~BufferQueue() = default;

    struct Buffer
    {
        void *handle; ///< Identifies the buffer.
        std::uint8_t *data;
        std::size_t size; ///< Bytes.
    };

    /// Takes the next buffer from the input pool for filling. Returns nothing if the pool is empty. A source
    /// may take buffers ahead; a flush reaches them only when they are filled, or after stop().
    virtual std::optional<Buffer> take() = 0;

    /// Passes a filled buffer on to the consumer.
    virtual void deliver(const Buffer &buffer, const FilledImage &image) = 0;

    /// Puts a buffer that was taken back into the input pool.
    virtual void giveBack(const Buffer &buffer) = 0;

    /// Counts images that could not be stored because the pool was empty.
    virtual void countUnderrun(std::uint64_t images) = 0;
};

/// The images of one camera. Only one stream uses a source at a time. Any thread may call the functions, also
/// while another thread accesses registers; start() and stop() are called in turns, one at a time.
class ImageSource
{
public:
    virtual ~ImageSource() = default;

    /// Returns the number of bytes that a buffer needs now.
    virtual std::size_t payloadSize() const = 0;

    /// Returns the smallest number of buffers that have to be announced before start().
    virtual std::size_t minBuffers() const { return 1; }

    /// Returns the largest number of chunks that a buffer can contain, or nothing if it is unknown.
    virtual std::optional<std::size_t> maxChunks() const { return std::nullopt; }

    /// Begins to fill buffers of the queue, on threads of the source, until stop(). `queue` exists until
    /// then. May throw GenTlError.
    virtual void start(BufferQueue &queue) = 0;

    /// Ends filling. Blocks until the source does not use the queue any more: every buffer that it has taken
    /// was delivered or given back. If `isImmediate`, an image in progress is not waited for.
    virtual void stop(bool isImmediate) = 0;

    /// Called after buffers were put into the input pool while the source is started. A call may also come
    /// during start() and stop(), and shortly after stop().
    virtual void bufferQueued() { }

    /// Returns the number of images that the source has begun since it was created, and the number of images
    /// that are missing between them.
    virtual std::uint64_t startedImages() const = 0;
    virtual std::uint64_t lostImages() const = 0;
};

/// A camera that the consumer has opened. read() and write() are called from several threads, one at a time.
/// accessStatus() is called at any time. The other functions are called once, before the first access. The
/// destructor closes the camera.
class OpenCamera
{
public:
    virtual ~OpenCamera() = default;

    /// Reads or writes registers. Throws GenTlError: GC_ERR_INVALID_ADDRESS, GC_ERR_ACCESS_DENIED, GC_ERR_IO,
    /// GC_ERR_TIMEOUT or GC_ERR_INVALID_VALUE.
    virtual void read(std::uint64_t address, void *data, std::size_t size) = 0;
    virtual void write(std::uint64_t address, const void *data, std::size_t size) = 0;

    /// Returns where the register description lies, in the form of GCGetPortURLInfo, best first; for example
    /// "Local:camera.xml;100000;2F3A". Both numbers are hexadecimal.
    virtual std::vector<std::string> descriptionUrls() const = 0;

    /// Returns the byte order of the registers that does not state its own.
    virtual bool isBigEndian() const { return false; }

    /// Returns ticks per second, or 0 if the camera has no clock.
    virtual std::uint64_t timestampFrequency() const = 0;

    /// Returns GenTL::DEVICE_ACCESS_STATUS_OPEN_READWRITE or _OPEN_READONLY, or _NOACCESS after a loss.
    virtual GenTL::DEVICE_ACCESS_STATUS accessStatus() const = 0;

    /// Returns the source of the camera's images, which the camera owns, or null if the camera has no stream.
    virtual ImageSource *imageSource() = 0;

    /// Sets the function that is called, on any thread, once the camera is lost. Called before any other
    /// function.
    virtual void setLossHandler(std::function<void()> handler) = 0;
};
