#include "sdk/cvxcpp/Utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace {

const std::string R = "\xEF\xBF\xBD"; // U+FFFD.

} // namespace

TEST(Utf8Test, KeepsValidText)
{
    const std::string text
        = "A\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
    EXPECT_EQ(toValidUtf8(text), text);
}

struct Malformed
{
    std::string bytes, text;
};

class Utf8MalformedTest : public testing::TestWithParam<Malformed>
{ };

TEST_P(Utf8MalformedTest, ReplacesWhatIsMalformed)
{
    EXPECT_EQ(toValidUtf8(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Sequences, Utf8MalformedTest,
    testing::Values(Malformed{"a\xFF"
                              "b",
                        "a" + R + "b"},
        Malformed{"\x80", R}, Malformed{"\xC3", R}, Malformed{"\xC0\x80", R + R},
        Malformed{"\xE0\x80\x80", R + R + R}, Malformed{"\xED\xA0\x80", R + R + R},
        Malformed{"\xF4\x90\x80\x80", R + R + R + R}, Malformed{"\xE2\x82", R + R},
        Malformed{"\xE2\x82x", R + R + "x"}, Malformed{"\xC3(", R + "("}));

TEST(Utf8Test, EscapesTheControlCharactersAboveAscii)
{
    EXPECT_EQ(toLine("\xC2\x80\xC2\x85\xC2\x9B"
                     "31m\xC2\x9F\xC2\xA0\xC3\x80"),
        "\\x80\\x85\\x9b31m\\x9f\xC2\xA0\xC3\x80");
}

TEST(Utf8Test, PutsTextOnOneLine)
{
    EXPECT_EQ(toLine("a\nb\x1b[0m\x7F\xFF"), "a\\nb\\x1b[0m\\x7f" + R);
}
