// Fills the buffers of a stream.

#include "tests/camerahost/producer/QuirkCall.h"
#include "tests/camerahost/producer/QuirkCamera.h"
#include "tests/camerahost/producer/QuirkScript.h"
#include "tests/sdk/producer/Misbehaviour.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <fstream>

using namespace GenTL;

namespace {

constexpr std::size_t trailerSize = 8; // ID and length of a chunk.

struct Chunk
{
    std::uint32_t id;
    std::size_t length; // A multiple of 4.
};

std::vector<Chunk> chunkList(const Layout &layout)
{
    return {{0x1000, (layout.imageOffset + layout.imageSize() + 3) / 4 * 4}, {0x1001, 8}, {0x1002, 4}};
}

void storeWord(std::uint8_t *target, std::uint32_t value)
{
    if (QuirkScript::text("chunk-order", "big") == "big")
        value = __builtin_bswap32(value);
    std::memcpy(target, &value, sizeof value);
}

/// Writes the trailers of all chunks, the exposure time and the number of the image.
void fillChunks(
    std::vector<std::uint8_t> &data, const Camera &camera, const Layout &layout, std::uint64_t number)
{
    const auto chunks = chunkList(layout);
    std::size_t end = 0;
    for (const Chunk &chunk : chunks) {
        end += chunk.length;
        storeWord(data.data() + end, chunk.id);
        storeWord(data.data() + end + 4, static_cast<std::uint32_t>(chunk.length));
        end += trailerSize;
    }
    const std::uint64_t exposure = camera.get(ExposureTimeRegister);
    const auto count = static_cast<std::uint32_t>(number);
    std::memcpy(data.data() + end - 2 * trailerSize - 4 - 8, &exposure, sizeof exposure);
    std::memcpy(data.data() + end - trailerSize - 4, &count, sizeof count);
}

/// Returns the content of a buffer: byte x of line y of the picture is x + 3 * y + frame ID.
std::vector<std::uint8_t> render(
    const Camera &camera, const Layout &layout, std::uint64_t frameId, std::uint64_t number)
{
    std::vector<std::uint8_t> data(layout.totalSize(), 0xEE); // 0xEE is padding.
    const std::size_t lineBytes = layout.lineSize() - layout.linePadding;
    for (std::size_t y = 0; y < layout.height; ++y) {
        std::uint8_t *line = data.data() + layout.imageOffset + y * layout.lineSize();
        for (std::size_t x = 0; x < lineBytes; ++x)
            line[x] = static_cast<std::uint8_t>(x + 3 * y + frameId);
    }
    if (layout.hasChunks)
        fillChunks(data, camera, layout, number);
    return data;
}

/// Returns the frame ID of an image: those of the script first, then the following numbers.
std::uint64_t frameIdOf(std::uint64_t number)
{
    const auto listed = QuirkScript::words("frame-ids");
    if (number < listed.size())
        return std::stoull(listed[number]);
    return listed.empty() ? number + 1 : std::stoull(listed.back()) + number - listed.size() + 1;
}

void fill(Buffer &buffer, const Camera &camera, std::uint64_t number, bool isCutShort)
{
    buffer.layout = camera.layout();
    buffer.frameId = frameIdOf(number);
    const auto data = render(camera, buffer.layout, buffer.frameId, number);
    buffer.isTooSmall = data.size() > buffer.size;
    buffer.isIncomplete = isCutShort || buffer.isTooSmall;
    buffer.filled = std::min(isCutShort ? data.size() / 2 : data.size(), buffer.size);
    std::memcpy(buffer.base, data.data(), buffer.filled);
    buffer.timestamp = 1'000'000 * (number + 1);
    buffer.isNew = true;
}

/// Damages the memory that the host shares with the library, like a wild pointer of a producer.
void scribble()
{
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        const auto dash = line.find('-');
        if (line.find("CvxCPP ring") == std::string::npos)
            continue;
        const auto begin = std::stoull(line, nullptr, 16);
        const auto end = std::stoull(line.substr(dash + 1), nullptr, 16);
        std::memset(reinterpret_cast<void *>(begin), 0xFF, end - begin);
    }
}

/// Delivers the next image as the action of the script demands.
void deliver(Stream &stream, const std::string &action)
{
    const std::uint64_t number = stream.images++;
    if (stream.input.empty()) {
        ++stream.underruns;
        return;
    }
    Buffer *const buffer = stream.input.front();
    stream.input.pop_front();
    fill(*buffer, *stream.camera, number, action == "cut-short");
    buffer->state = Buffer::State::Output;
    if (action == "scribble")
        scribble();
    if (action != "silent")
        stream.output.push_back(buffer);
    if (action == "twice")
        stream.output.push_back(buffer);
    if (action == "foreign")
        stream.output.push_back(reinterpret_cast<Buffer *>(&stream));
}

void acquire(Stream &stream)
{
    std::unique_lock lock(mutex);
    const auto isStopped = [&] { return !stream.isGrabbing; };
    const auto interval = std::chrono::microseconds(QuirkScript::number("interval", 2000));
    while (!changed.wait_for(lock, interval, isStopped)) {
        const bool isDone = stream.images >= QuirkScript::number("images", ~std::uint64_t(0));
        const bool isStarted = stream.camera->isAcquiring || QuirkScript::has("free-running");
        if (!isStarted || isDone || isGone(stream.camera->id))
            continue;
        lock.unlock();
        const std::string action = QuirkScript::actionFor("image");
        perform(action);
        lock.lock();
        deliver(stream, action);
        changed.notify_all();
    }
}

} // namespace

std::size_t Layout::totalSize() const
{
    std::size_t size = hasChunks ? 0 : imageOffset + imageSize();
    for (const Chunk &chunk : hasChunks ? chunkList(*this) : std::vector<Chunk>())
        size += chunk.length + trailerSize;
    return size;
}

std::size_t Stream::announced() const
{
    return static_cast<std::size_t>(std::count_if(buffers.begin(), buffers.end(),
        [](const Buffer &buffer) { return buffer.state != Buffer::State::Revoked; }));
}

std::vector<SINGLE_CHUNK_DATA> chunksOf(const Layout &layout)
{
    std::vector<SINGLE_CHUNK_DATA> result;
    std::size_t offset = 0;
    for (const Chunk &chunk : layout.hasChunks ? chunkList(layout) : std::vector<Chunk>()) {
        result.push_back({chunk.id, static_cast<std::ptrdiff_t>(offset), chunk.length});
        offset += chunk.length + trailerSize;
    }
    return result;
}

Stream *streamOf(void *dataStream)
{
    for (Camera &camera : cameras()) {
        if (&camera.stream == dataStream && camera.stream.isOpen)
            return &camera.stream;
    }
    logViolation("a data stream's handle is not valid");
    return nullptr;
}

Buffer *bufferOf(Stream &stream, void *buffer)
{
    for (Buffer &known : stream.buffers) {
        if (&known == buffer && known.state != Buffer::State::Revoked)
            return &known;
    }
    return nullptr;
}

void startThread(Stream &stream)
{
    stream.isGrabbing = true;
    stream.thread = std::thread([&stream] { acquire(stream); });
}

void stopThread(Stream &stream, std::unique_lock<std::mutex> &lock)
{
    stream.isGrabbing = false;
    changed.notify_all();
    std::thread ending = std::move(stream.thread);
    lock.unlock();
    if (ending.joinable())
        ending.join();
    lock.lock();
}
