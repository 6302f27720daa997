#include "tests/gige/camera/Options.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cstdio>
#include <iterator>
#include <string_view>

const char *const usage
    = "usage: fake_gige_cameras --interface NAME --address FIRST [OPTION]...\n"
      "Simulates GigE Vision cameras that answer discovery commands on one network interface.\n"
      "  --count N            number of cameras; their addresses follow each other (1)\n"
      "  --delay MIN-MAX      delay of each answer in milliseconds, at random (0-0)\n"
      "  --loss PERCENT       share of the answers that is dropped, at random (0)\n"
      "  --seed N             seed of both (1)\n"
      "  --vendor TEXT        vendor of every camera (Palvento)\n"
      "  --model TEXT         model of every camera (Latent GigE)\n"
      "  --serial PREFIX      text before the number of the camera (FAKE)\n"
      "  --no-serial          the cameras have no serial number\n"
      "  --mac XX:XX:XX       first three bytes of the MAC addresses (02:0a:0b)\n"
      "Prints \"ready\" when the cameras can be found, and runs until a signal ends it.\n";

namespace {

/// Returns whether the text contains all values and nothing else. The format has to end with "%c".
template <typename... Values>
bool scan(const char *text, const char *format, Values *...values)
{
    char rest = 0;
    return std::sscanf(text, format, values..., &rest) == sizeof...(values);
}

struct Setter
{
    std::string_view option;
    bool (*set)(Options &options, const char *value); ///< Returns whether the value is valid.
};

constexpr Setter setters[] = {
    {"--interface",
        [](Options &options, const char *value) { return !(options.interfaceName = value).empty(); }},
    {"--count", [](Options &options, const char *value) { return scan(value, "%u%c", &options.count); }},
    {"--delay",
        [](Options &options, const char *value) {
            return scan(value, "%u-%u%c", &options.minDelay, &options.maxDelay)
                && options.minDelay <= options.maxDelay;
        }},
    {"--loss",
        [](Options &options, const char *value) { return scan(value, "%lf%c", &options.lossPercent); }},
    {"--seed", [](Options &options, const char *value) { return scan(value, "%u%c", &options.seed); }},
    {"--vendor", [](Options &options, const char *value) { return !(options.vendor = value).empty(); }},
    {"--model", [](Options &options, const char *value) { return !(options.model = value).empty(); }},
    {"--serial", [](Options &options, const char *value) { return !(options.serialPrefix = value).empty(); }},
    {"--mac",
        [](Options &options, const char *value) {
            auto &mac = options.macPrefix;
            return scan(value, "%2hhx:%2hhx:%2hhx%c", &mac[0], &mac[1], &mac[2]);
        }},
    {"--address",
        [](Options &options, const char *value) {
            in_addr address{};
            const bool isValid = inet_pton(AF_INET, value, &address) == 1;
            options.firstAddress = ntohl(address.s_addr);
            return isValid;
        }},
};

} // namespace

std::optional<Options> parseOptions(int count, char *arguments[])
{
    Options options;
    for (int index = 1; index < count; ++index) {
        const std::string_view option = arguments[index];
        if (option == "--no-serial") {
            options.hasSerial = false;
            continue;
        }
        const auto setter = std::find_if(std::begin(setters), std::end(setters),
            [&](const Setter &candidate) { return candidate.option == option; });
        if (setter == std::end(setters) || ++index == count || !setter->set(options, arguments[index]))
            return std::nullopt;
    }
    const bool isComplete = !options.interfaceName.empty() && options.firstAddress != 0;
    return isComplete ? std::optional(options) : std::nullopt;
}
