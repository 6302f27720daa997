#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The byte order of the numbers that describe the chunks of a buffer.
enum class ChunkByteOrder
{
    BigEndian, ///< GigE Vision
    LittleEndian, ///< USB3 Vision
};

/// Returns the chunks of a buffer in the order of their data. Each chunk consists of data, ID and data
/// length, so the last chunk is found at the end of the buffer. Returns nothing if the lengths do not add up
/// to the size of the buffer.
std::vector<GenTL::SINGLE_CHUNK_DATA> parseChunks(
    const std::uint8_t *data, std::size_t size, ChunkByteOrder byteOrder);
