#include "sdk/device/NodeText.h"

#include <clocale>
#include <gtest/gtest.h>
#include <limits>

using namespace CvxCPP;

namespace {

constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();

struct Case
{
    NodeType type;
    const char *text;
    NodeValue value; ///< No value if the text is no value of the type.
};

} // namespace

TEST(NodeTextTest, valuesAreTexts)
{
    const Case cases[] = {{NodeType::Integer, "-42", std::int64_t(-42)},
        {NodeType::Integer, "-9223372036854775808", lowest}, {NodeType::Float, "0.1", 0.1},
        {NodeType::Float, "0.30000000000000004", 0.1 + 0.2}, {NodeType::Float, "1e+300", 1e300},
        {NodeType::Float, "1", 1.0}, {NodeType::Boolean, "true", true}, {NodeType::Boolean, "false", false},
        {NodeType::String, "a b", std::string("a b")}, {NodeType::Enumeration, "Off", std::string("Off")},
        {NodeType::Register, "00ff10", std::vector<std::uint8_t>{0, 255, 16}},
        {NodeType::Register, "", std::vector<std::uint8_t>()}};
    for (const Case &test : cases) {
        EXPECT_EQ(nodeText(test.value), test.text);
        EXPECT_EQ(nodeValueOf(test.type, test.text), test.value) << test.text;
    }
    EXPECT_EQ(nodeText({}), "");
}

TEST(NodeTextTest, otherFormsAreAccepted)
{
    const Case cases[] = {{NodeType::Integer, "0x1F", std::int64_t(31)},
        {NodeType::Integer, "0XfFfFfFfFfFfFfFfF", std::int64_t(-1)}, {NodeType::Float, "-5", -5.0},
        {NodeType::Float, "2.50", 2.5}, {NodeType::Boolean, "1", true}, {NodeType::Boolean, "0", false},
        {NodeType::Register, "aAfF", std::vector<std::uint8_t>{0xAA, 0xFF}}};
    for (const Case &test : cases)
        EXPECT_EQ(nodeValueOf(test.type, test.text), test.value) << test.text;
}

TEST(NodeTextTest, otherTextsAreRefused)
{
    const Case cases[] = {{NodeType::Integer, "", {}}, {NodeType::Integer, "1.5", {}},
        {NodeType::Integer, " 1", {}}, {NodeType::Integer, "1 ", {}}, {NodeType::Integer, "0x", {}},
        {NodeType::Integer, "0x-1", {}}, {NodeType::Integer, "9223372036854775808", {}},
        {NodeType::Float, "", {}}, {NodeType::Float, "1,5", {}}, {NodeType::Float, "1.5s", {}},
        {NodeType::Boolean, "True", {}}, {NodeType::Boolean, "", {}}, {NodeType::Register, "abc", {}},
        {NodeType::Register, "0g", {}}, {NodeType::Category, "", {}}, {NodeType::Command, "1", {}}};
    for (const Case &test : cases)
        EXPECT_EQ(nodeValueOf(test.type, test.text), std::nullopt) << test.text;
}
