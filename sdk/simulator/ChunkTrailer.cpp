#include "sdk/simulator/ChunkTrailer.h"

#include "sdk/simulator/EnumerationValues.h"

#include <array>
#include <cstring>

namespace {

constexpr std::size_t trailerSize = 8;
constexpr std::size_t valueSize = 8; // All chunks but the image are one value of 8 bytes.

std::array<std::uint64_t, chunkCount> bitsOf(const ChunkValues &values)
{
    std::array<std::uint64_t, chunkCount> bits{};
    bits[chunkTimestamp] = values.timestamp;
    std::memcpy(&bits[chunkExposureTime], &values.exposureTime, valueSize);
    bits[chunkFrameId] = values.frameId;
    std::memcpy(&bits[chunkGain], &values.gain, valueSize);
    return bits;
}

/// Writes the lowest `size` bytes of a value and returns the place behind them.
std::uint8_t *writeNumber(std::uint8_t *place, std::uint64_t value, std::size_t size, bool isBigEndian)
{
    for (std::size_t i = 0; i < size; ++i)
        *place++ = static_cast<std::uint8_t>(value >> 8 * (isBigEndian ? size - 1 - i : i));
    return place;
}

} // namespace

std::size_t chunkOverhead(const RegisterBank &bank)
{
    if (!bank.isOn(RegisterId::ChunkModeActive))
        return 0;
    std::size_t size = trailerSize; // The trailer of the image.
    for (std::size_t chunk = chunkImage + 1; chunk < chunkCount; ++chunk)
        if (bank.isOn(RegisterId::ChunkEnable, chunk))
            size += valueSize + trailerSize;
    return size;
}

std::vector<GenTL::SINGLE_CHUNK_DATA> writeChunks(const RegisterBank &bank, const ChunkValues &values,
    std::uint8_t *buffer, std::size_t imageSize, bool isBigEndian)
{
    if (!bank.isOn(RegisterId::ChunkModeActive))
        return {};
    std::vector<GenTL::SINGLE_CHUNK_DATA> chunks;
    std::uint8_t *place = buffer + imageSize;
    const auto addTrailer = [&](std::size_t chunk, std::size_t size) {
        chunks.push_back({chunkId(chunk), place - buffer - static_cast<std::ptrdiff_t>(size), size});
        place = writeNumber(place, chunkId(chunk), 4, isBigEndian);
        place = writeNumber(place, size, 4, isBigEndian);
    };
    addTrailer(chunkImage, imageSize);
    const std::array<std::uint64_t, chunkCount> bits = bitsOf(values);
    for (std::size_t chunk = chunkImage + 1; chunk < chunkCount; ++chunk) {
        if (!bank.isOn(RegisterId::ChunkEnable, chunk))
            continue;
        place = writeNumber(place, bits[chunk], valueSize, isBigEndian);
        addTrailer(chunk, valueSize);
    }
    return chunks;
}
