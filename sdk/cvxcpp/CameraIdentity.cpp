#include "sdk/cvxcpp/CameraIdentity.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

std::string_view trimmedView(std::string_view text)
{
    constexpr std::string_view whiteSpace = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

/// Converts an ASCII letter to lower case, independently of the locale. Other characters are not changed.
char lowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

std::string normalised(std::string_view text)
{
    std::string result;
    text = trimmedView(text);
    std::transform(text.begin(), text.end(), std::back_inserter(result), lowerCase);
    return result;
}

} // namespace

CameraIdentity identityOf(const DeviceRecord &device)
{
    CameraIdentity identity;
    const std::string vendor = normalised(device.vendor), model = normalised(device.model);
    if (!vendor.empty() && !model.empty())
        identity.model = vendor + '\0' + model; // The separator cannot be a part of a name.
    identity.serial = normalised(device.serial);
    for (const std::string *text : {&device.id, &device.serial}) {
        const auto addresses = macAddressesIn(*text), digits = digitSequencesIn(*text);
        identity.addresses.insert(identity.addresses.end(), addresses.begin(), addresses.end());
        identity.digits.insert(identity.digits.end(), digits.begin(), digits.end());
    }
    return identity;
}
