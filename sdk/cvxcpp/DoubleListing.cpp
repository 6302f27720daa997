#include "sdk/cvxcpp/DoubleListing.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace {

using Identities = std::set<std::string>;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Of ASCII letters only: makers write their names elsewhere with the same bytes or with none.
char lowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Empty for a camera that cannot be recognised.
std::string identityOf(const ListedDevice &device)
{
    std::string identity;
    for (const std::string *field : {&device.vendor, &device.model, &device.serial}) {
        const std::string_view text = trimmed(*field);
        if (text.empty())
            return {};
        std::transform(text.begin(), text.end(), std::back_inserter(identity), lowerCase);
        identity += '\0'; // Texts end at a NUL, so none holds one.
    }
    return identity;
}

CameraList::Pointer without(const CameraList::Pointer &list, const Identities &known)
{
    const auto isKnown = [&](const std::shared_ptr<CameraObject> &camera) {
        return known.count(identityOf(camera->device())) > 0;
    };
    if (known.empty() || std::none_of(list->cameras.begin(), list->cameras.end(), isKnown))
        return list;
    auto rest = std::make_shared<CameraList>(*list);
    rest->cameras.erase(
        std::remove_if(rest->cameras.begin(), rest->cameras.end(), isKnown), rest->cameras.end());
    return rest;
}

} // namespace

std::vector<CameraList::Pointer> withoutRepeats(const std::vector<ProducerReport> &reports)
{
    std::vector<CameraList::Pointer> shown;
    Identities earlier, current; // Of the directories before, and of this one.
    for (std::size_t i = 0; i < reports.size(); ++i) {
        if (i > 0 && reports[i].directory != reports[i - 1].directory)
            earlier.merge(std::exchange(current, {}));
        shown.push_back(without(reports[i].list, earlier));
        for (const auto &camera : reports[i].list->cameras) {
            std::string identity = identityOf(camera->device());
            if (!identity.empty())
                current.insert(std::move(identity));
        }
    }
    return shown;
}
