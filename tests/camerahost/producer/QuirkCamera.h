#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <array>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// Addresses of the registers, 8 bytes each, little endian; camera.xml describes them.
enum Register : std::uint64_t
{
    WidthRegister = 0x00,
    HeightRegister = 0x08,
    PixelFormatRegister = 0x10,
    PayloadSizeRegister = 0x18,
    TLParamsLockedRegister = 0x20,
    AcquisitionStartRegister = 0x28,
    AcquisitionStopRegister = 0x30,
    ExposureTimeRegister = 0x38, // A float.
    GainRegister = 0x40,
    ChunkModeActiveRegister = 0x48,
    registerBytes = 0x100
};
constexpr std::uint64_t descriptionAddress = 0x100000;

/// How a buffer is filled.
struct Layout
{
    std::size_t width = 0;
    std::size_t height = 0;
    std::uint64_t pixelFormat = 0;
    std::size_t imageOffset = 0;
    std::size_t linePadding = 0; // Bytes.
    std::size_t parts = 0; // The picture is the last part; 0: the buffer is not multi-part.
    bool hasChunks = false;

    std::size_t lineSize() const { return width * (pixelFormat >> 16 & 0xFF) / 8 + linePadding; }
    std::size_t imageSize() const { return lineSize() * height; }
    std::size_t totalSize() const;
};

struct Buffer
{
    enum class State
    {
        Revoked,
        Announced,
        Input,
        Output
    };

    std::vector<std::uint8_t> own; // Memory of the producer; empty if the memory is the consumer's.
    std::uint8_t *base = nullptr;
    std::size_t size = 0;
    void *userPointer = nullptr;
    State state = State::Announced;
    Layout layout;
    std::size_t filled = 0;
    std::uint64_t frameId = 0;
    std::uint64_t timestamp = 0; // Nanoseconds.
    bool isNew = false;
    bool isIncomplete = false;
    bool isTooSmall = false;
};

struct Camera;

struct Stream
{
    Camera *camera = nullptr;
    bool isOpen = false;
    bool isGrabbing = false;
    bool isRegistered = false; // The new-buffer event.
    int waiters = 0; // Calls that wait in EventGetData().
    int kills = 0;
    std::deque<Buffer> buffers; // Revoked buffers stay here, so that their handles never become invalid.
    std::deque<Buffer *> input;
    std::deque<Buffer *> output; // One new-buffer event for each entry.
    std::uint64_t images = 0; // Since the stream was opened, including those without a free buffer.
    std::uint64_t delivered = 0;
    std::uint64_t underruns = 0;
    std::thread thread;

    std::size_t announced() const;
};

struct Camera
{
    std::string id;
    GenTL::DEVICE_ACCESS_FLAGS access = GenTL::DEVICE_ACCESS_NONE; // NONE: closed.
    std::array<std::uint8_t, registerBytes> registers{};
    bool isAcquiring = false; // AcquisitionStart was executed.
    std::vector<int> locks; // Descriptors of the files that lock the camera for other processes.
    Stream stream;

    std::uint64_t get(Register address) const;
    void set(Register address, std::uint64_t value);
    Layout layout() const; // Returns the layout that the registers and the script demand.
};

extern std::mutex mutex; // Guards everything in this file.
extern std::condition_variable changed; // Notified after every change.
std::deque<Camera> &cameras(); ///< The cameras that were ever opened.

/// Returns the camera of a device's handle, or null if the handle is not valid.
Camera *cameraOf(void *device);
Camera *cameraOfPort(void *port);
Stream *streamOf(void *dataStream);
Buffer *bufferOf(Stream &stream, void *buffer);

bool isGone(const std::string &cameraId); ///< The camera is unplugged.

/// Opens the camera for this process, or returns an error. Other processes see this until closeCamera().
GenTL::GC_ERROR openCamera(const std::string &id, GenTL::DEVICE_ACCESS_FLAGS access, Camera *&camera);
void closeCamera(Camera &camera, std::unique_lock<std::mutex> &lock);

GenTL::GC_ERROR readPort(Camera &camera, std::uint64_t address, void *data, std::size_t &size);
GenTL::GC_ERROR writePort(Camera &camera, std::uint64_t address, const void *data, std::size_t &size);

/// Starts and stops the thread that fills buffers. stopThread() waits for its end without holding the lock.
void startThread(Stream &stream);
void stopThread(Stream &stream, std::unique_lock<std::mutex> &lock);

/// Returns the chunks behind an image: ID, offset in the buffer and length of their data.
std::vector<GenTL::SINGLE_CHUNK_DATA> chunksOf(const Layout &layout);
