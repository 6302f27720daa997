#include "sdk/text/Utf8.h"

#include <cstddef>

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

unsigned byteAt(std::string_view bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

/// Returns the length of the well-formed sequence at the start of `bytes`, or 0 if there is no such
/// sequence.
std::size_t sequenceLength(std::string_view bytes)
{
    // The range of the second byte excludes overlong forms and surrogates.
    struct Form
    {
        unsigned first, last;
        std::size_t length;
        unsigned secondFirst, secondLast;
    };
    static constexpr Form forms[] = {
        {0x00, 0x7F, 1, 0, 0},
        {0xC2, 0xDF, 2, 0x80, 0xBF},
        {0xE0, 0xE0, 3, 0xA0, 0xBF},
        {0xE1, 0xEC, 3, 0x80, 0xBF},
        {0xED, 0xED, 3, 0x80, 0x9F},
        {0xEE, 0xEF, 3, 0x80, 0xBF},
        {0xF0, 0xF0, 4, 0x90, 0xBF},
        {0xF1, 0xF3, 4, 0x80, 0xBF},
        {0xF4, 0xF4, 4, 0x80, 0x8F},
    };
    const unsigned lead = byteAt(bytes, 0);
    for (const Form &form : forms) {
        if (lead < form.first || lead > form.last)
            continue;
        if (bytes.size() < form.length)
            return 0;
        if (form.length > 1 && (byteAt(bytes, 1) < form.secondFirst || byteAt(bytes, 1) > form.secondLast))
            return 0;
        for (std::size_t i = 2; i < form.length; ++i) {
            if ((byteAt(bytes, i) & 0xC0U) != 0x80U)
                return 0;
        }
        return form.length;
    }
    return 0;
}

/// Returns the length of the control character at a position of valid UTF-8, or 0 if there is another
/// character. Some terminals execute the characters U+0080 to U+009F too. UTF-8 encodes each of them as 0xC2
/// and a byte of the same value.
std::size_t controlLength(std::string_view text, std::size_t index)
{
    const unsigned byte = byteAt(text, index);
    if (byte == 0xC2 && byteAt(text, index + 1) < 0xA0)
        return 2;
    return byte < 0x20 || byte == 0x7F ? 1 : 0;
}

} // namespace

std::string toValidUtf8(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        text += length > 0 ? bytes.substr(0, length) : replacement;
        bytes.remove_prefix(length > 0 ? length : 1);
    }
    return text;
}

std::string toPrintable(std::string_view bytes)
{
    std::string printable;
    const std::string text = toValidUtf8(bytes);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t length = controlLength(text, i);
        printable += length > 0 ? ' ' : text[i];
        i += length > 1 ? 1 : 0;
    }
    return printable;
}

std::string toLine(std::string_view bytes)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string line;
    const std::string text = toValidUtf8(bytes);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t length = controlLength(text, i);
        if (length == 0) {
            line += text[i];
            continue;
        }
        i += length - 1;
        const unsigned code = byteAt(text, i);
        if (code == '\n') {
            line += "\\n";
        } else {
            line += "\\x";
            line += digits[code >> 4];
            line += digits[code & 0xF];
        }
    }
    return line;
}
