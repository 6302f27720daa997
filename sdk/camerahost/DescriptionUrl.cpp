#include "sdk/camerahost/DescriptionUrl.h"

#include "sdk/camerahost/DescriptionText.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <strings.h>

namespace {

bool equalsIgnoringCase(std::string_view left, std::string_view right)
{
    return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

std::optional<std::uint64_t> parseHexadecimal(std::string_view text)
{
    text = withoutBlanks(text);
    if (equalsIgnoringCase(text.substr(0, 2), "0x"))
        text.remove_prefix(2);
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

/// Parses "name;address;length". The name may contain semicolons.
std::optional<DescriptionUrl> parseLocal(std::string_view text)
{
    const std::size_t lengthAt = text.rfind(';');
    if (lengthAt == std::string_view::npos || lengthAt == 0)
        return std::nullopt;
    const std::size_t addressAt = text.rfind(';', lengthAt - 1);
    if (addressAt == std::string_view::npos)
        return std::nullopt;
    const auto address = parseHexadecimal(text.substr(addressAt + 1, lengthAt - addressAt - 1));
    const auto length = parseHexadecimal(text.substr(lengthAt + 1));
    if (!address || !length)
        return std::nullopt;
    return DescriptionUrl{DescriptionUrl::Scheme::Local, {}, *address, *length};
}

std::string percentDecoded(std::string_view text)
{
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '%' && i + 2 < text.size()
            && std::isxdigit(static_cast<unsigned char>(text[i + 1]))
            && std::isxdigit(static_cast<unsigned char>(text[i + 2]));
        if (isEscape) {
            decoded += static_cast<char>(*parseHexadecimal(text.substr(i + 1, 2)));
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

/// Parses "name", "/path" and "//host/path", whose host is ignored.
std::optional<DescriptionUrl> parseFile(std::string_view text)
{
    if (text.substr(0, 2) == "//") {
        const std::size_t path = text.find('/', 2);
        text = path == std::string_view::npos ? text.substr(2) : text.substr(path);
    }
    DescriptionUrl url{DescriptionUrl::Scheme::File, percentDecoded(text), 0, 0};
    // A path with a drive is one of another operating system, written as "C:" or as "C|".
    const std::size_t drive = url.path.find_first_not_of('/');
    if (drive != std::string::npos && url.path.size() > drive + 1 && url.path[drive + 1] == '|')
        url.path[drive + 1] = ':';
    if (url.path.empty() || url.path.find('\0') != std::string::npos)
        return std::nullopt;
    return url;
}

/// Removes "?SchemaVersion=1.1.0" from the end.
std::string_view withoutSchemaVersion(std::string_view text)
{
    constexpr std::string_view suffix = "?SchemaVersion=";
    const std::size_t query = text.rfind('?');
    if (query != std::string_view::npos && equalsIgnoringCase(text.substr(query, suffix.size()), suffix))
        text = text.substr(0, query);
    return text;
}

} // namespace

std::optional<DescriptionUrl> parseDescriptionUrl(std::string_view text)
{
    text = withoutBlanks(withoutSchemaVersion(withoutBlanks(text)));
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos)
        return std::nullopt;
    const std::string_view scheme = withoutBlanks(text.substr(0, colon));
    std::string_view rest = withoutBlanks(text.substr(colon + 1));
    if (equalsIgnoringCase(scheme, "Local"))
        return parseLocal(rest);
    if (equalsIgnoringCase(scheme, "File"))
        return parseFile(rest);
    if (equalsIgnoringCase(scheme, "Http") || equalsIgnoringCase(scheme, "Https"))
        return DescriptionUrl{DescriptionUrl::Scheme::Http, {}, 0, 0};
    return DescriptionUrl();
}

std::vector<std::string> splitStringList(std::string_view list)
{
    std::vector<std::string> strings;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find('\0'), list.size());
        if (end > 0)
            strings.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return strings;
}
