#pragma once

#include <cstdint>

/// The registers by which a test controls the camera of the test producer. Each register has 8 bytes, little
/// endian. The bytes below `memorySize` are memory.
namespace TestCameraRegisters {

constexpr std::uint64_t memory = 0x0;
constexpr std::uint64_t memorySize = 0x100;

// A write to one of these registers does something.
constexpr std::uint64_t deliver = 0x1000; ///< Delivers this number of images.
constexpr std::uint64_t take
    = 0x1008; ///< Takes a buffer and keeps it until the next write below, or the stop.
constexpr std::uint64_t giveBack = 0x1010; ///< Returns the kept buffer to the queue.
constexpr std::uint64_t lose = 0x1018; ///< Loses the camera.
constexpr std::uint64_t fail = 0x1020; ///< Every later access to the memory fails with this code.

// These registers set what the image source reports.
constexpr std::uint64_t payloadSize = 0x2000;
constexpr std::uint64_t minBuffers = 0x2008;
constexpr std::uint64_t maxChunks = 0x2010; ///< 0 is unknown.
constexpr std::uint64_t startFailure = 0x2018; ///< Code with which the start fails, or 0.

// These registers set what is reported for the next images.
constexpr std::uint64_t width = 0x2020; ///< 0 is no picture.
constexpr std::uint64_t chunks = 0x2028; ///< Number of chunks, one after another.
constexpr std::uint64_t chunkOffset = 0x2030; ///< Offset of the first chunk.
constexpr std::uint64_t chunkLength = 0x2048;
constexpr std::uint64_t isIncomplete = 0x2038;
constexpr std::uint64_t dataSize = 0x2040;

// These registers can only be read.
constexpr std::uint64_t queuedNotices = 0x3000; ///< Calls of ImageSource::bufferQueued().
constexpr std::uint64_t isStarted = 0x3018; ///< Whether the image source is started.
constexpr std::uint64_t overlaps = 0x3020; ///< Accesses to the memory that began during another one.
constexpr std::uint64_t openCameras = 0x3008; ///< Cameras of the producer that exist.
/// The read blocks until the device list is updated. Meanwhile, the access status is
/// DEVICE_ACCESS_STATUS_CUSTOM_ID.
constexpr std::uint64_t gate = 0x3010;

} // namespace TestCameraRegisters
