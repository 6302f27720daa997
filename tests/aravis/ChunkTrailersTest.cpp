// These tests check how the chunks of a buffer are found.

#include "sdk/aravis/ChunkTrailers.h"

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::uint8_t>;
using Chunks = std::vector<std::array<std::uint64_t, 3>>; // ID, offset and length.

Chunks chunksOf(const Bytes &bytes, ChunkByteOrder byteOrder)
{
    Chunks chunks;
    for (const GenTL::SINGLE_CHUNK_DATA &chunk : parseChunks(bytes.data(), bytes.size(), byteOrder))
        chunks.push_back({chunk.ChunkID, static_cast<std::uint64_t>(chunk.ChunkOffset), chunk.ChunkLength});
    return chunks;
}

} // namespace

TEST(ChunkTrailers, chunksAreFoundFromTheEnd)
{
    const Bytes gige{1, 2, 3, 4, 0, 0, 0x10, 0x01, 0, 0, 0, 4, 9, 9, 0xA0, 0, 0, 2, 0, 0, 0, 2};
    EXPECT_EQ(chunksOf(gige, ChunkByteOrder::BigEndian), (Chunks{{0x1001, 0, 4}, {0xA0000002, 12, 2}}));
    const Bytes usb{1, 2, 3, 4, 0x01, 0x10, 0, 0, 4, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(chunksOf(usb, ChunkByteOrder::LittleEndian), (Chunks{{0x1001, 0, 4}, {2, 12, 0}}));
}

TEST(ChunkTrailers, lengthsThatDoNotAddUpGiveNoChunks)
{
    for (const Bytes &bytes :
        {Bytes{0, 0, 0, 1, 0, 0, 0, 1}, Bytes{7, 0, 0, 0, 1, 0, 0, 0, 0}, Bytes(3), Bytes{}})
        EXPECT_EQ(chunksOf(bytes, ChunkByteOrder::BigEndian), Chunks{}) << bytes.size();
    EXPECT_EQ(chunksOf({0, 0, 0, 1, 0xFF, 0xFF, 0xFF, 0xFF}, ChunkByteOrder::BigEndian), Chunks{});
}
