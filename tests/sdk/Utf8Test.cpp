#include "sdk/text/Utf8.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

TEST(Utf8Test, keepsValidText)
{
    // Contains the first and the last character of every length, and the characters next to the surrogates.
    const std::string text
        = "A\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
    EXPECT_EQ(toValidUtf8(text), text);
}

TEST(Utf8Test, replacesMalformedSequences)
{
    // In the expected strings, "?" stands for the replacement character U+FFFD.
    const std::pair<const char *, const char *> cases[] = {{"a\xFF z", "a? z"}, {"\x80", "?"}, {"\xC3", "?"},
        {"\xC0\x80", "??"}, {"\xE0\x80\x80", "???"}, {"\xED\xA0\x80", "???"}, {"\xF4\x90\x80\x80", "????"},
        {"\xE2\x82", "??"}, {"\xE2\x82x", "??x"}, {"\xC3(", "?("}};
    for (const auto &[bytes, expected] : cases) {
        std::string text = toValidUtf8(bytes);
        for (auto at = text.find("\xEF\xBF\xBD"); at != std::string::npos; at = text.find("\xEF\xBF\xBD"))
            text.replace(at, 3, "?");
        EXPECT_EQ(text, expected);
    }
}

TEST(Utf8Test, escapesControlCharacters)
{
    EXPECT_EQ(toLine("a\nb\x1b[0m\x1f \x7F\xFF"), "a\\nb\\x1b[0m\\x1f \\x7f\xEF\xBF\xBD");
    EXPECT_EQ(toLine("\xC2\x80\xC2\x85\xC2\x9B"
                     "31m\xC2\x9F\xC2\xA0\xC3\x80"),
        "\\x80\\x85\\x9b31m\\x9f\xC2\xA0\xC3\x80");
}
