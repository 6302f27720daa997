#include "sdk/features/FeatureText.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <locale>

using namespace CvxCPP;

namespace {

using Bytes = std::vector<std::uint8_t>;

struct ValueRow
{
    NodeType type;
    const char *text;
    NodeValue value; // No value: the text is refused.
};

NodeValue integer(std::int64_t value)
{
    return value;
}

/// A locale with a decimal comma, whether or not the machine has one.
class CommaPunctuation : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

} // namespace

TEST(FeatureTextTest, textsOfOtherProgramsAreUnderstood)
{
    const ValueRow rows[] = {{NodeType::Integer, "10", integer(10)}, {NodeType::Integer, " -5 ", integer(-5)},
        {NodeType::Integer, "0x10", integer(16)}, {NodeType::Integer, "010", integer(10)},
        {NodeType::Integer, "+3", integer(3)}, {NodeType::Integer, "1e3", integer(1000)},
        {NodeType::Integer, "16.0", integer(16)}, {NodeType::Integer, "18446744073709551615", integer(-1)},
        {NodeType::Integer, "1.5", {}}, {NodeType::Integer, "12,5", {}}, {NodeType::Integer, "1e300", {}},
        {NodeType::Integer, "-0x1", {}}, {NodeType::Float, "1.5", 1.5}, {NodeType::Float, "1e-3", 0.001},
        {NodeType::Float, "12,5", 12.5}, {NodeType::Float, "-0,125", -0.125},
        {NodeType::Float, "1234,567", 1234.567}, {NodeType::Float, "1,5e3", 1500.0},
        {NodeType::Float, "0x10", 16.0}, {NodeType::Float, "12,345", {}}, {NodeType::Float, "1.234,5", {}},
        {NodeType::Float, "1,2,3", {}}, {NodeType::Float, "x", {}}, {NodeType::Boolean, "1", true},
        {NodeType::Boolean, "False", false}, {NodeType::Boolean, "on", {}},
        {NodeType::Enumeration, "Mono8 ", std::string("Mono8")},
        {NodeType::String, " a ", std::string(" a ")}, {NodeType::Register, "01aB", Bytes{1, 0xAB}},
        {NodeType::Register, "0x01", Bytes{1}}, {NodeType::Register, "012", {}},
        {NodeType::Register, "0g", {}}, {NodeType::Command, "1", {}}};
    for (const ValueRow &row : rows) {
        const auto value = settingValue(row.type, row.text);
        const auto *const typed = std::get_if<NodeValue>(&value);
        EXPECT_EQ(typed ? *typed : NodeValue(), row.value) << row.text;
    }
    EXPECT_NE(
        std::get<std::string>(settingValue(NodeType::Float, "12,345")).find("ambiguous"), std::string::npos);
    EXPECT_EQ(std::get<std::string>(settingValue(NodeType::Float, "a,b")), "\"a,b\" is not a number.");
}

TEST(FeatureTextTest, everyValueReadsBackTheSameInEveryLocale)
{
    const std::locale previous
        = std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // Not every machine has it.
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.1, 1.0 / 3, 1e22, 123456.789, -5e-324, Limits::max(), Limits::min(), 0.0}) {
        const std::string text = settingText(value);
        EXPECT_EQ(text.find(','), std::string::npos) << text;
        EXPECT_EQ(std::get<NodeValue>(settingValue(NodeType::Float, text)), NodeValue(value)) << text;
    }
    EXPECT_EQ(settingText(0.1), "0.1");
    const std::pair<NodeType, NodeValue> others[]
        = {{NodeType::Integer, std::numeric_limits<std::int64_t>::min()}, {NodeType::Boolean, true},
            {NodeType::String, std::string("a b")}, {NodeType::Register, Bytes{0, 0xFF}}};
    for (const auto &[type, value] : others)
        EXPECT_EQ(std::get<NodeValue>(settingValue(type, settingText(value))), value);
    std::setlocale(LC_ALL, "C");
    std::locale::global(previous);
}

TEST(FeatureTextTest, numbersAreComparedByTheirValues)
{
    const std::pair<const char *, const char *> same[] = {{"0x10", "16"}, {"1e3", "1000"}, {"true", "1"},
        {"0.1", "1e-1"}, {"12,5", "12.5"}, {"0.1", "0.10000000149011612"}, {"nan", "nan"}, {"Off ", "Off"}};
    for (const auto &[left, right] : same)
        EXPECT_TRUE(isSameText(left, right)) << left;
    const std::pair<const char *, const char *> different[] = {{"1", "2"}, {"0.1", "0.101"},
        {"9007199254740993", "9007199254740992"}, {"Off", "On"}, {"Off", "0"}, {"0", "1e-300x"}};
    for (const auto &[left, right] : different)
        EXPECT_FALSE(isSameText(left, right)) << left;
    EXPECT_TRUE(isSameValue(1000.0, 1000.4, 0.5));
    EXPECT_FALSE(isSameValue(1000.0, 1000.6, 0.5));
    EXPECT_FALSE(isSameValue(std::string("1"), std::int64_t(1)));
}
