#include "sdk/camerahost/ChunkTrailers.h"

namespace {

constexpr std::size_t trailerSize = 8;

using ReadNumber = std::uint64_t (*)(const std::uint8_t *bytes);

std::uint64_t readBigEndian(const std::uint8_t *bytes)
{
    return std::uint64_t(bytes[0]) << 24U | std::uint64_t(bytes[1]) << 16U | std::uint64_t(bytes[2]) << 8U
        | bytes[3];
}

std::uint64_t readLittleEndian(const std::uint8_t *bytes)
{
    return std::uint64_t(bytes[3]) << 24U | std::uint64_t(bytes[2]) << 16U | std::uint64_t(bytes[1]) << 8U
        | bytes[0];
}

std::size_t findChunks(
    const std::uint8_t *data, std::size_t size, ReadNumber readNumber, ChunkPositions &chunks)
{
    std::size_t count = 0;
    std::size_t end = size;
    while (end >= trailerSize) {
        const std::size_t trailer = end - trailerSize;
        const std::uint64_t id = readNumber(data + trailer);
        const std::uint64_t length = readNumber(data + trailer + 4);
        if (length > trailer || (id == 0 && length == 0)) // The latter are the zeros of a black picture.
            return 0;
        end = trailer - length;
        if (count < chunks.size())
            chunks[count++] = {id, end, length};
    }
    return end == 0 ? count : 0;
}

} // namespace

std::size_t findChunks(const std::uint8_t *data, std::size_t size, ChunkPositions &chunks)
{
    const std::size_t count = findChunks(data, size, readBigEndian, chunks);
    return count > 0 ? count : findChunks(data, size, readLittleEndian, chunks);
}
