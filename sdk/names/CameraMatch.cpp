#include "sdk/names/CameraMatch.h"

#include <algorithm>

namespace {

std::string toLower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return text;
}

using Field = std::string CameraNames::*;
constexpr Field exactFields[]
    = {&CameraNames::extendedId, &CameraNames::id, &CameraNames::serial, &CameraNames::userName};
constexpr Field partFields[] = {&CameraNames::extendedId, &CameraNames::serial, &CameraNames::userName,
    &CameraNames::model, &CameraNames::name};

} // namespace

std::vector<std::size_t> matchCameras(const std::vector<CameraNames> &cameras, const std::string &text)
{
    const std::string wanted = toLower(text);
    std::vector<std::size_t> exact, partial;
    for (std::size_t index = 0; index < cameras.size(); ++index) {
        const auto isEqual = [&](Field field) { return toLower(cameras[index].*field) == wanted; };
        const auto isPart
            = [&](Field field) { return toLower(cameras[index].*field).find(wanted) != std::string::npos; };
        if (std::any_of(std::begin(exactFields), std::end(exactFields), isEqual))
            exact.push_back(index);
        if (std::any_of(std::begin(partFields), std::end(partFields), isPart))
            partial.push_back(index);
    }
    return exact.empty() ? partial : exact;
}
