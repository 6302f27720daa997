#include "sdk/aravis/ChunkTrailers.h"

#include <algorithm>

namespace {

constexpr std::size_t trailerSize = 8; // The ID and the length, 4 bytes each.

std::uint32_t number(const std::uint8_t *bytes, ChunkByteOrder byteOrder)
{
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < sizeof value; ++index)
        value = value << 8 | bytes[byteOrder == ChunkByteOrder::BigEndian ? index : sizeof value - 1 - index];
    return value;
}

} // namespace

std::vector<GenTL::SINGLE_CHUNK_DATA> parseChunks(
    const std::uint8_t *data, std::size_t size, ChunkByteOrder byteOrder)
{
    std::vector<GenTL::SINGLE_CHUNK_DATA> chunks;
    while (size > 0) {
        if (size < trailerSize)
            return {};
        const std::uint8_t *const trailer = data + size - trailerSize;
        const std::size_t length = number(trailer + 4, byteOrder);
        if (length > size - trailerSize)
            return {};
        size -= trailerSize + length;
        chunks.push_back({number(trailer, byteOrder), static_cast<std::ptrdiff_t>(size), length});
    }
    std::reverse(chunks.begin(), chunks.end());
    return chunks;
}
