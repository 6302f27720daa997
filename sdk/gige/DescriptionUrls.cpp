#include "sdk/gige/DescriptionUrls.h"

#include <algorithm>
#include <array>
#include <strings.h>

namespace {

constexpr std::uint64_t urlAddresses[] = {0x0200, 0x0400};
constexpr std::size_t urlSize = 512;

} // namespace

std::vector<std::string> readDescriptionUrls(const RegisterReader &read)
{
    std::vector<std::string> urls;
    for (const std::uint64_t address : urlAddresses) {
        std::array<char, urlSize> text{};
        read(address, text.data(), text.size());
        const auto end = std::find(text.begin(), text.end(), '\0');
        if (end != text.begin())
            urls.emplace_back(text.begin(), end);
    }
    std::stable_partition(urls.begin(), urls.end(), isLocalUrl);
    return urls;
}

bool isLocalUrl(const std::string &url)
{
    constexpr char prefix[] = "local:";
    return strncasecmp(url.c_str(), prefix, sizeof prefix - 1) == 0;
}
