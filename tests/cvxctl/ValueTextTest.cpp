#include "tools/cvxctl/ValueText.h"
#include "tools/cvxctl/Terminal.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

struct Row
{
    NodeValue value;
    NodeRepresentation representation;
    const char *text;
    const char *json;
};

class ValueTextTest : public testing::TestWithParam<Row>
{ };

} // namespace

TEST_P(ValueTextTest, valueIsShownAsTheCameraWantsIt)
{
    const Row &row = GetParam();
    EXPECT_EQ(valueText(row.value, row.representation), row.text);
    EXPECT_EQ(valueJson(row.value).dump(), row.json);
}

INSTANTIATE_TEST_SUITE_P(Values, ValueTextTest,
    testing::Values(Row{std::int64_t(-42), NodeRepresentation::Undefined, "-42", "-42"},
        Row{std::int64_t(255), NodeRepresentation::HexNumber, "0xFF", "255"},
        Row{std::int64_t(0xC0A80102), NodeRepresentation::IPv4Address, "192.168.1.2", "3232235778"},
        Row{std::int64_t(0x0102030A0B0C), NodeRepresentation::MacAddress, "01:02:03:0A:0B:0C",
            "1108152552204"},
        Row{0.1, NodeRepresentation::Undefined, "0.1", "0.1"},
        Row{std::nan(""), NodeRepresentation::Undefined, "nan", "\"nan\""},
        Row{true, NodeRepresentation::Undefined, "true", "true"},
        Row{std::string("Mono8"), NodeRepresentation::Undefined, "Mono8", "\"Mono8\""},
        Row{std::vector<std::uint8_t>{1, 0xAB}, NodeRepresentation::Undefined, "01ab", "\"01ab\""},
        Row{NodeValue(), NodeRepresentation::Undefined, "", "null"}));

TEST(TerminalTest, controlCharactersAreShownInsteadOfSent)
{
    EXPECT_EQ(printable("a\x1B[2J\tü\x7F"), "a\\x1B[2J\\x09ü\\x7F");
}
