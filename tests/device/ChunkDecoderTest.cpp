#include "sdk/device/ChunkDecoder.h"

#include <array>
#include <gtest/gtest.h>
#include <ostream>

using namespace CvxCPP;

namespace {

constexpr std::uint64_t chunkId = 5;
constexpr std::uint64_t chunkOffset = 4;

/// A buffer whose bytes from `chunkOffset` on belong to the chunk.
constexpr std::array<std::uint8_t, 20> buffer{0xEE, 0xEE, 0xEE, 0xEE, 0x81, 0x02, 0x03, 0x04, 0x00, 0x00,
    0x20, 0x41, 'O', 'n', 0, 'x', 0xEE, 0xEE, 0xEE, 0xEE};

struct Case
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

std::ostream &operator<<(std::ostream &stream, const Case &test)
{
    return stream << test.name;
}

} // namespace

class ChunkValueTest : public testing::TestWithParam<Case>
{ };

TEST_P(ChunkValueTest, valueIsExtracted)
{
    const Case &test = GetParam();
    const ChunkFeature feature{"Feature", test.type, chunkId, test.address, test.length, test.isBigEndian,
        test.isSigned, test.lowestBit, test.highestBit, {{"Off", "Off", 0}, {"Third", "Third", 3}}};
    const std::array<ChunkPosition, 2> chunks{{{9, 0, 20}, {chunkId, chunkOffset, 12}}};
    const auto values = ChunkDecoder({feature}).decode(buffer.data(), chunks.data(), chunks.size());
    ASSERT_EQ(values.size(), std::holds_alternative<std::monostate>(test.value) ? 0U : 1U);
    if (!values.empty()) {
        EXPECT_EQ(values[0].name, "Feature");
        EXPECT_EQ(values[0].value, test.value);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, ChunkValueTest,
    testing::Values(
        Case{"LittleEndian", NodeType::Integer, 0, 4, false, false, 0, 63, std::int64_t(0x04030281)},
        Case{"BigEndian", NodeType::Integer, 0, 4, true, false, 0, 63, std::int64_t(0x81020304)},
        Case{"Signed", NodeType::Integer, 0, 4, true, true, 0, 63, std::int64_t(0x81020304) - (1LL << 32)},
        Case{"SignedByte", NodeType::Integer, 0, 1, false, true, 0, 63, std::int64_t(-127)},
        Case{"EightBytes", NodeType::Integer, 0, 8, false, false, 0, 63, std::int64_t(0x4120000004030281)},
        Case{"Bits", NodeType::Integer, 0, 4, true, false, 8, 11, std::int64_t(3)},
        Case{"SignedBits", NodeType::Integer, 0, 1, true, true, 4, 7, std::int64_t(-8)},
        Case{"ReversedBits", NodeType::Integer, 0, 4, true, false, 8, 4, {}},
        Case{"NineBytes", NodeType::Integer, 0, 9, false, false, 0, 63, {}},
        Case{"NoBytes", NodeType::Integer, 0, 0, false, false, 0, 63, {}},
        Case{"Float", NodeType::Float, 4, 4, false, false, 0, 63, 10.0},
        Case{"OddFloat", NodeType::Float, 4, 3, false, false, 0, 63, {}},
        Case{"True", NodeType::Boolean, 2, 1, false, false, 0, 63, true},
        Case{"False", NodeType::Boolean, 4, 2, false, false, 0, 63, false},
        Case{"Entry", NodeType::Enumeration, 2, 1, false, false, 0, 63, std::string("Third")},
        Case{"UnknownEntry", NodeType::Enumeration, 1, 1, false, false, 0, 63, {}},
        Case{"String", NodeType::String, 8, 4, false, false, 0, 63, std::string("On")},
        Case{"WholeString", NodeType::String, 8, 2, false, false, 0, 63, std::string("On")},
        Case{"MalformedString", NodeType::String, 0, 1, false, false, 0, 63, std::string("\xEF\xBF\xBD")},
        Case{"EndsAtTheEnd", NodeType::Integer, 11, 1, false, false, 0, 63, std::int64_t('x')},
        Case{"EndsBehindTheChunk", NodeType::Integer, 11, 2, false, false, 0, 63, {}},
        Case{"BeginsBehindTheChunk", NodeType::Integer, 13, 1, false, false, 0, 63, {}},
        Case{"Overflows", NodeType::Integer, ~0ULL, 2, false, false, 0, 63, {}},
        Case{"Register", NodeType::Register, 0, 1, false, false, 0, 63, {}}),
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
    const auto values = ChunkDecoder({missing, present}).decode(buffer.data(), &chunk, 1);
    ASSERT_EQ(values.size(), 1U);
    EXPECT_EQ(values[0].name, "Present");
}
