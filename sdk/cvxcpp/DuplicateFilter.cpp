#include "sdk/cvxcpp/DuplicateFilter.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace {

using Identity = std::array<std::string, 3>; // Vendor, model and serial number.
using Identities = std::set<Identity>;

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

/// Returns nothing if the device lacks one of the three fields.
std::optional<Identity> identityOf(const DeviceRecord &device)
{
    Identity identity{normalised(device.vendor), normalised(device.model), normalised(device.serial)};
    if (std::any_of(identity.begin(), identity.end(), [](const auto &field) { return field.empty(); }))
        return std::nullopt;
    return identity;
}

CameraList::Pointer without(const CameraList::Pointer &list, const Identities &known)
{
    const auto isKnown = [&](const std::shared_ptr<CameraObject> &camera) {
        const auto identity = identityOf(camera->device());
        return identity && known.count(*identity) > 0;
    };
    if (known.empty() || std::none_of(list->cameras.begin(), list->cameras.end(), isKnown))
        return list;
    auto rest = std::make_shared<CameraList>(*list);
    rest->cameras.erase(
        std::remove_if(rest->cameras.begin(), rest->cameras.end(), isKnown), rest->cameras.end());
    return rest;
}

} // namespace

std::vector<CameraList::Pointer> withoutDuplicates(const std::vector<CameraList::Pointer> &lists)
{
    std::vector<CameraList::Pointer> result;
    Identities known; // The identities that the previous producers have reported.
    for (const CameraList::Pointer &list : lists) {
        result.push_back(without(list, known));
        for (const auto &camera : list->cameras) {
            if (auto identity = identityOf(camera->device()))
                known.insert(std::move(*identity));
        }
    }
    return result;
}
