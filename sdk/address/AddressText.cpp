#include "sdk/address/AddressText.h"

#include "sdk/gvcp/CameraData.h"

#include <charconv>
#include <string_view>

namespace {

/// Returns the decimal number that the whole text is. Returns nothing if the number is larger than `max`.
std::optional<unsigned> parseNumber(std::string_view text, unsigned max)
{
    unsigned number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return isWhole && number <= max ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<std::uint32_t> parseIpv4(const std::string &text)
{
    std::uint32_t address = 0;
    std::string_view rest = text;
    for (int part = 0; part < 4; ++part) {
        const std::size_t end = part < 3 ? rest.find('.') : rest.size();
        if (end == std::string_view::npos)
            return std::nullopt;
        const auto number = parseNumber(rest.substr(0, end), 255);
        if (!number)
            return std::nullopt;
        address = address << 8 | *number;
        rest.remove_prefix(part < 3 ? end + 1 : end);
    }
    return address;
}

std::optional<WrittenAddress> parseWrittenAddress(const std::string &text)
{
    const std::size_t slash = text.find('/');
    const auto address = parseIpv4(text.substr(0, slash));
    if (!address)
        return std::nullopt;
    if (slash == std::string::npos)
        return WrittenAddress{*address, std::nullopt};
    const auto prefix = parseNumber(std::string_view(text).substr(slash + 1), 32);
    return prefix ? std::optional(WrittenAddress{*address, prefix}) : std::nullopt;
}

std::uint32_t maskOfPrefix(unsigned prefix)
{
    return prefix == 0 ? 0 : ~0U << (32 - prefix);
}

std::optional<unsigned> prefixOfMask(std::uint32_t mask)
{
    for (unsigned prefix = 0; prefix <= 32; ++prefix) {
        if (maskOfPrefix(prefix) == mask)
            return prefix;
    }
    return std::nullopt;
}

std::string addressText(std::uint32_t address, std::uint32_t mask)
{
    const auto prefix = prefixOfMask(mask);
    return ipv4ToString(address) + '/' + (prefix ? std::to_string(*prefix) : ipv4ToString(mask));
}
