#include "sdk/producer/PortUrl.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <strings.h>
#include <utility>
#include <vector>

using namespace GenTL;

namespace {

constexpr std::pair<const char *, URL_SCHEME_ID> schemes[] = {
    {"Local:", URL_SCHEME_LOCAL},
    {"Http:", URL_SCHEME_HTTP},
    {"File:", URL_SCHEME_FILE},
};

std::optional<std::uint64_t> parseHexadecimal(const std::string &text)
{
    std::uint64_t number = 0;
    const char *const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number, 16);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

/// Reads a suffix like "?SchemaVersion=1.1.0".
std::optional<PortUrl::Version> parseSchemaVersion(const char *suffix)
{
    int major = 0, minor = 0, subminor = 0;
    if (std::sscanf(suffix, "%*[^=]=%d.%d.%d", &major, &minor, &subminor) < 2)
        return std::nullopt;
    return PortUrl::Version{major, minor, subminor};
}

std::vector<std::string> split(const std::string &text, char separator)
{
    std::vector<std::string> parts(1);
    for (const char character : text) {
        if (character == separator)
            parts.emplace_back();
        else
            parts.back() += character;
    }
    return parts;
}

} // namespace

PortUrl PortUrl::parse(const std::string &url)
{
    PortUrl result;
    const char *const suffix = strcasestr(url.c_str(), "?SchemaVersion=");
    result.url = suffix ? std::string(url.c_str(), suffix) : url;
    if (suffix)
        result.schemaVersion = parseSchemaVersion(suffix);
    std::string place = result.url;
    for (const auto &[prefix, scheme] : schemes) {
        if (strncasecmp(url.c_str(), prefix, std::strlen(prefix)) != 0)
            continue;
        result.scheme = scheme;
        place = result.url.substr(std::strlen(prefix));
    }
    const std::vector<std::string> parts = split(place, ';');
    result.fileName = parts[0].substr(parts[0].find_last_of('/') + 1);
    if (result.scheme == URL_SCHEME_LOCAL && parts.size() == 3) {
        result.address = parseHexadecimal(parts[1]);
        result.size = parseHexadecimal(parts[2]);
    }
    return result;
}
