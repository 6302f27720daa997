#include "sdk/device/ChunkDecoder.h"

#include <array>
#include <gtest/gtest.h>
#include <ostream>

using namespace CvxCPP;

namespace {

constexpr std::uint64_t chunkId = 5;
constexpr std::uint64_t chunkOffset = 4;

/// A chunkBuffer whose bytes from `chunkOffset` on belong to the chunk.
constexpr std::array<std::uint8_t, 20> chunkBuffer{0xEE, 0xEE, 0xEE, 0xEE, 0x81, 0x02, 0x03, 0x04, 0x00, 0x00,
    0x20, 0x41, 'O', 'n', 0, 'x', 0xEE, 0xEE, 0xEE, 0xEE};

struct ChunkCase
{
    const char *name;
    NodeType type;
    std::uint64_t address;
    std::uint32_t length;
    bool isBigEndian;
    bool isSigned;
    std::uint32_t lowestBit;
    std::uint32_t highestBit;
    NodeValue value; ///< No value if the feature is missing.
};

std::ostream &operator<<(std::ostream &stream, const ChunkCase &test)
{
    return stream << test.name;
}

} // namespace

class ChunkValueTest : public testing::TestWithParam<ChunkCase>
{ };

TEST_P(ChunkValueTest, valueIsExtracted)
{
    const ChunkCase &test = GetParam();
    const ChunkFeature feature{"Feature", test.type, chunkId, test.address, test.length, test.isBigEndian,
        test.isSigned, test.lowestBit, test.highestBit, {{"Off", "Off", 0}, {"Third", "Third", 3}}};
    const std::array<ChunkPosition, 2> chunks{{{9, 0, 20}, {chunkId, chunkOffset, 12}}};
    const auto values = ChunkDecoder({feature}).decode(chunkBuffer.data(), chunks.data(), chunks.size());
    ASSERT_EQ(values.size(), std::holds_alternative<std::monostate>(test.value) ? 0U : 1U);
    if (!values.empty()) {
        EXPECT_EQ(values[0].name, "Feature");
        EXPECT_EQ(values[0].value, test.value);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, ChunkValueTest,
    testing::Values(
        ChunkCase{"LittleEndian", NodeType::Integer, 0, 4, false, false, 0, 63, std::int64_t(0x04030281)},
        ChunkCase{"BigEndian", NodeType::Integer, 0, 4, true, false, 0, 63, std::int64_t(0x81020304)},
        ChunkCase{
            "Signed", NodeType::Integer, 0, 4, true, true, 0, 63, std::int64_t(0x81020304) - (1LL << 32)},
        ChunkCase{"SignedByte", NodeType::Integer, 0, 1, false, true, 0, 63, std::int64_t(-127)},
        ChunkCase{
            "EightBytes", NodeType::Integer, 0, 8, false, false, 0, 63, std::int64_t(0x4120000004030281)},
        ChunkCase{"Bits", NodeType::Integer, 0, 4, true, false, 8, 11, std::int64_t(3)},
        ChunkCase{"SignedBits", NodeType::Integer, 0, 1, true, true, 4, 7, std::int64_t(-8)},
        ChunkCase{"ReversedBits", NodeType::Integer, 0, 4, true, false, 8, 4, {}},
        ChunkCase{"NineBytes", NodeType::Integer, 0, 9, false, false, 0, 63, {}},
        ChunkCase{"NoBytes", NodeType::Integer, 0, 0, false, false, 0, 63, {}},
        ChunkCase{"Float", NodeType::Float, 4, 4, false, false, 0, 63, 10.0},
        ChunkCase{"OddFloat", NodeType::Float, 4, 3, false, false, 0, 63, {}},
        ChunkCase{"True", NodeType::Boolean, 2, 1, false, false, 0, 63, true},
        ChunkCase{"False", NodeType::Boolean, 4, 2, false, false, 0, 63, false},
        ChunkCase{"Entry", NodeType::Enumeration, 2, 1, false, false, 0, 63, std::string("Third")},
        ChunkCase{"UnknownEntry", NodeType::Enumeration, 1, 1, false, false, 0, 63, {}},
        ChunkCase{"String", NodeType::String, 8, 4, false, false, 0, 63, std::string("On")},
        ChunkCase{"WholeString", NodeType::String, 8, 2, false, false, 0, 63, std::string("On")},
        ChunkCase{
            "MalformedString", NodeType::String, 0, 1, false, false, 0, 63, std::string("\xEF\xBF\xBD")},
        ChunkCase{"EndsAtTheEnd", NodeType::Integer, 11, 1, false, false, 0, 63, std::int64_t('x')},
        ChunkCase{"EndsBehindTheChunk", NodeType::Integer, 11, 2, false, false, 0, 63, {}},
        ChunkCase{"BeginsBehindTheChunk", NodeType::Integer, 13, 1, false, false, 0, 63, {}},
        ChunkCase{"Overflows", NodeType::Integer, ~0ULL, 2, false, false, 0, 63, {}},
        ChunkCase{"Register", NodeType::Register, 0, 1, false, false, 0, 63, {}}),
    [](const auto &test) { return std::string(test.param.name); });

TEST(ChunkDecoderTest, missingChunksAreOmitted)
{
    ChunkFeature missing;
    missing.name = "Missing";
    missing.chunkId = 6;
    missing.length = 1;
    ChunkFeature present = missing;
    present.name = "Present";
    present.chunkId = chunkId;
    const ChunkPosition chunk{chunkId, chunkOffset, 12};
    const auto values = ChunkDecoder({missing, present}).decode(chunkBuffer.data(), &chunk, 1);
    ASSERT_EQ(values.size(), 1U);
    EXPECT_EQ(values[0].name, "Present");
}
