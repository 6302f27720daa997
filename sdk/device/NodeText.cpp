#include "sdk/device/NodeText.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <type_traits>

using namespace CvxCPP;

namespace {

/// Parses the whole text as a number, like std::from_chars().
template <typename Number, typename... Format>
std::optional<Number> parse(std::string_view text, Format... format)
{
    Number number{};
    const char *const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, format...);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return number;
}

template <typename Number>
std::string numberText(Number number)
{
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

std::string hexText(const std::vector<std::uint8_t> &bytes)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    return text;
}

std::optional<NodeValue> integerOf(const std::string &text)
{
    if (text.compare(0, 2, "0x") == 0 || text.compare(0, 2, "0X") == 0) {
        // All 64 bits may be set, for example in a mask.
        const auto bits = parse<std::uint64_t>(std::string_view(text).substr(2), 16);
        return bits ? std::optional<NodeValue>(static_cast<std::int64_t>(*bits)) : std::nullopt;
    }
    const auto number = parse<std::int64_t>(text, 10);
    return number ? std::optional<NodeValue>(*number) : std::nullopt;
}

std::optional<NodeValue> floatOf(const std::string &text)
{
    const auto number = parse<double>(text);
    return number ? std::optional<NodeValue>(*number) : std::nullopt;
}

std::optional<NodeValue> booleanOf(const std::string &text)
{
    if (text == "true" || text == "1")
        return true;
    if (text == "false" || text == "0")
        return false;
    return std::nullopt;
}

std::optional<NodeValue> stringOf(const std::string &text)
{
    return text;
}

std::optional<NodeValue> bytesOf(const std::string &text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::vector<std::uint8_t> bytes;
    for (std::size_t position = 0; position < text.size(); position += 2) {
        const auto byte = parse<std::uint8_t>(std::string_view(text).substr(position, 2), 16);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

std::optional<NodeValue> noValue(const std::string &)
{
    return std::nullopt;
}

} // namespace

std::string nodeText(const NodeValue &value)
{
    return std::visit(
        [](const auto &content) -> std::string {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate>)
                return {};
            else if constexpr (std::is_same_v<Content, bool>)
                return content ? "true" : "false";
            else if constexpr (std::is_same_v<Content, std::string>)
                return content;
            else if constexpr (std::is_same_v<Content, std::vector<std::uint8_t>>)
                return hexText(content);
            else
                return numberText(content);
        },
        value);
}

std::optional<NodeValue> nodeValueOf(NodeType type, const std::string &text)
{
    // One conversion for each type, in the order of the enumeration.
    static constexpr std::optional<NodeValue> (*conversions[])(const std::string &)
        = {noValue, integerOf, floatOf, booleanOf, stringOf, stringOf, noValue, bytesOf};
    static_assert(std::size(conversions) == static_cast<std::size_t>(NodeType::Register) + 1);
    return conversions[static_cast<std::size_t>(type)](text);
}
