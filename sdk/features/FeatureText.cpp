#include "sdk/features/FeatureText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <type_traits>

using namespace CvxCPP;

namespace {

constexpr double relativeTolerance = 1e-6;
constexpr double exactIntegers = 9007199254740992.0; // A double holds every integer up to 2^53.

std::string_view withoutBlanks(std::string_view text)
{
    constexpr const char *blankCharacters = " \t";
    const std::size_t first = text.find_first_not_of(blankCharacters);
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(blankCharacters) + 1 - first);
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return result;
}

template <typename Number>
std::string numberText(Number number)
{
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

/// Parses the whole text as a number, like std::from_chars().
template <typename Number, typename... Format>
std::optional<Number> parseNumber(std::string_view text, Format... format)
{
    Number number{};
    const char *const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, format...);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return number;
}

std::string_view withoutPlus(std::string_view text)
{
    return text.size() > 1 && text[0] == '+' && text[1] != '-' ? text.substr(1) : text;
}

std::optional<std::int64_t> parseWholeNumber(std::string_view text)
{
    text = withoutPlus(text);
    const std::string prefix = lowered(text.substr(0, 2));
    const auto bits = prefix == "0x" ? parseNumber<std::uint64_t>(text.substr(2), 16)
                                     : parseNumber<std::uint64_t>(text, 10);
    if (bits) // All 64 bits may be set, for example in a mask.
        return static_cast<std::int64_t>(*bits);
    return parseNumber<std::int64_t>(text, 10);
}

bool isDigits(std::string_view text)
{
    return !text.empty()
        && std::all_of(text.begin(), text.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
}

/// What a comma in a number means.
enum class Comma
{
    None,
    Decimal,
    Unclear ///< It may also separate thousands.
};

Comma classifyComma(std::string_view text)
{
    const std::size_t comma = text.find(',');
    if (comma == text.npos || text.find_first_not_of("+-0123456789.,eE") != text.npos)
        return Comma::None;
    std::string_view whole = withoutPlus(text.substr(0, comma));
    if (!whole.empty() && whole.front() == '-')
        whole.remove_prefix(1);
    const std::string_view fraction = text.substr(comma + 1);
    if (!isDigits(whole) || !isDigits(fraction.substr(0, fraction.find_first_of("eE"))))
        return Comma::Unclear;
    const bool maySeparateThousands
        = fraction.size() == 3 && isDigits(fraction) && whole.size() <= 3 && whole != "0";
    return maySeparateThousands ? Comma::Unclear : Comma::Decimal;
}

std::optional<double> parseReal(std::string_view text)
{
    std::string number(withoutPlus(text));
    if (classifyComma(number) == Comma::Decimal)
        number[number.find(',')] = '.';
    return parseNumber<double>(number);
}

std::optional<NodeValue> noValue(std::string_view)
{
    return std::nullopt;
}

std::optional<NodeValue> integerOf(std::string_view text)
{
    if (const auto number = parseWholeNumber(text))
        return *number;
    const auto real = parseNumber<double>(withoutPlus(text));
    if (!real || std::fabs(*real) > exactIntegers || std::trunc(*real) < *real || std::trunc(*real) > *real)
        return std::nullopt;
    return static_cast<std::int64_t>(*real);
}

std::optional<NodeValue> floatOf(std::string_view text)
{
    if (const auto real = parseReal(text))
        return *real;
    const auto integer = parseWholeNumber(text); // Only the hexadecimal form is left.
    return integer ? std::optional<NodeValue>(static_cast<double>(*integer)) : std::nullopt;
}

std::optional<NodeValue> booleanOf(std::string_view text)
{
    const std::string word = lowered(text);
    if (word == "true" || word == "1")
        return true;
    if (word == "false" || word == "0")
        return false;
    return std::nullopt;
}

std::optional<NodeValue> textOf(std::string_view text)
{
    return std::string(text);
}

std::optional<NodeValue> bytesOf(std::string_view text)
{
    if (lowered(text.substr(0, 2)) == "0x")
        text.remove_prefix(2);
    std::vector<std::uint8_t> bytes;
    for (; text.size() >= 2; text.remove_prefix(2)) {
        const auto byte = parseNumber<std::uint8_t>(text.substr(0, 2), 16);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return text.empty() ? std::optional<NodeValue>(std::move(bytes)) : std::nullopt;
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

bool isNear(double left, double right, double tolerance)
{
    const double difference = std::fabs(left - right);
    return difference <= tolerance
        || difference <= relativeTolerance * std::max(std::fabs(left), std::fabs(right));
}

std::optional<double> asReal(const NodeValue &value)
{
    if (const auto *const integer = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*integer);
    const auto *const real = std::get_if<double>(&value);
    return real ? std::optional(*real) : std::nullopt;
}

/// Returns the number that the text describes: a boolean and an integer as integer, so that no bit is lost.
NodeValue numberOf(std::string_view text)
{
    if (const auto boolean = booleanOf(text))
        return std::int64_t(std::get<bool>(*boolean));
    if (const auto integer = integerOf(text))
        return *integer;
    const auto real = parseReal(text);
    return real ? NodeValue(*real) : NodeValue();
}

struct TypeRule
{
    std::optional<NodeValue> (*parse)(std::string_view);
    const char *expected;
};

// One rule for each type, in the order of the enumeration.
constexpr TypeRule typeRules[] = {{noValue, nullptr}, {integerOf, "an integer"}, {floatOf, "a number"},
    {booleanOf, "true, false, 1 or 0"}, {textOf, "the name of an entry"}, {textOf, "a text"},
    {noValue, nullptr}, {bytesOf, "a sequence of hexadecimal digits"}};
static_assert(std::size(typeRules) == static_cast<std::size_t>(NodeType::Register) + 1);

} // namespace

std::string settingText(const NodeValue &value)
{
    return std::visit(
        [](const auto &content) -> std::string {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate>)
                return {};
            else if constexpr (std::is_same_v<Content, bool>)
                return content ? "1" : "0";
            else if constexpr (std::is_same_v<Content, std::string>)
                return content;
            else if constexpr (std::is_same_v<Content, std::vector<std::uint8_t>>)
                return hexText(content);
            else
                return numberText(content);
        },
        value);
}

std::variant<NodeValue, std::string> settingValue(NodeType type, std::string_view text)
{
    const TypeRule &rule = typeRules[static_cast<std::size_t>(type)];
    if (!rule.expected)
        return std::string("This feature has no value.");
    if (type != NodeType::String)
        text = withoutBlanks(text);
    if (auto value = rule.parse(text))
        return std::move(*value);
    constexpr std::size_t maxTextInMessage = 60;
    const std::string shown = '"' + std::string(text.substr(0, maxTextInMessage)) + '"';
    if (type == NodeType::Float && classifyComma(text) == Comma::Unclear)
        return "The comma in " + shown + " is ambiguous; write the number with \".\".";
    return shown + " is not " + rule.expected + '.';
}

bool isSameValue(const NodeValue &left, const NodeValue &right, double tolerance)
{
    const bool hasFloat = std::holds_alternative<double>(left) || std::holds_alternative<double>(right);
    const auto leftReal = asReal(left);
    const auto rightReal = asReal(right);
    if (hasFloat && leftReal && rightReal)
        return settingText(left) == settingText(right) || isNear(*leftReal, *rightReal, tolerance);
    return left == right;
}

bool isSameText(std::string_view left, std::string_view right)
{
    if (left == right)
        return true;
    const NodeValue leftNumber = numberOf(withoutBlanks(left));
    const NodeValue rightNumber = numberOf(withoutBlanks(right));
    if (leftNumber.index() == 0 || rightNumber.index() == 0)
        return withoutBlanks(left) == withoutBlanks(right);
    return isSameValue(leftNumber, rightNumber);
}
