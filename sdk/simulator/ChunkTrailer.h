#pragma once

#include "sdk/gentl/GenTLDevice.h"
#include "sdk/simulator/RegisterBank.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// Chunk data: the image is the first chunk. Each chunk is its data, then its ID and its length in 4 bytes
// each.

/// What the chunks of one image contain.
struct ChunkValues
{
    std::uint64_t timestamp; ///< Nanoseconds.
    double exposureTime; ///< Microseconds.
    std::uint64_t frameId;
    double gain; ///< Decibels.
};

/// Returns the number of bytes that the enabled chunks add to an image.
std::size_t chunkOverhead(const RegisterBank &bank);

/// Writes the enabled chunks behind the image, which has `imageSize` bytes, and returns their places.
std::vector<GenTL::SINGLE_CHUNK_DATA> writeChunks(const RegisterBank &bank, const ChunkValues &values,
    std::uint8_t *buffer, std::size_t imageSize, bool isBigEndian);

/// ID of a chunk in the buffer and in the register description.
constexpr std::uint32_t chunkId(std::size_t chunk)
{
    return 0xC0DE0000U + static_cast<std::uint32_t>(chunk);
}
