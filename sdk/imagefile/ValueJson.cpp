#include "sdk/imagefile/ValueJson.h"

#include <array>
#include <charconv>
#include <cmath>
#include <type_traits>

namespace {

std::string hexText(const std::vector<std::uint8_t> &bytes)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

std::string numberText(double value)
{
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), result.ptr};
}

} // namespace

nlohmann::ordered_json valueJson(const CvxCPP::NodeValue &value)
{
    return std::visit(
        [](const auto &content) -> nlohmann::ordered_json {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate>)
                return nullptr;
            else if constexpr (std::is_same_v<Content, std::vector<std::uint8_t>>)
                return hexText(content);
            else if constexpr (std::is_same_v<Content, double>)
                return std::isfinite(content) ? nlohmann::ordered_json(content)
                                              : nlohmann::ordered_json(numberText(content));
            else
                return content;
        },
        value);
}
