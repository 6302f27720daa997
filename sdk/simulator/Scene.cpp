#include "sdk/simulator/Scene.h"

#include <map>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace {

using Json = nlohmann::json;

/// The text under a key; empty if there is none.
std::string optionalText(const Json &object, const char *key, const std::string &place)
{
    const auto value = object.find(key);
    if (value == object.end())
        return {};
    if (!value->is_string())
        throw std::runtime_error(place + ": \"" + key + "\" is not a string");
    std::string text = value->get<std::string>();
    if (text.find('\0') != std::string::npos) // It would end there for every consumer.
        throw std::runtime_error(place + ": \"" + key + "\" holds a NUL character");
    return text;
}

std::string requiredText(const Json &object, const char *key, const std::string &place)
{
    std::string text = optionalText(object, key, place);
    if (text.empty())
        throw std::runtime_error(place + ": \"" + key + "\" is missing or empty");
    return text;
}

std::string orElse(const std::string &text, const std::string &fallback)
{
    return text.empty() ? fallback : text;
}

std::string madeUpDisplayName(const DeviceRecord &device)
{
    if (!device.userName.empty())
        return device.userName;
    std::string name;
    for (const std::string *part : {&device.vendor, &device.model, &device.id}) {
        if (!name.empty() && !part->empty())
            name += ' ';
        name += *part;
    }
    return name;
}

DeviceRecord parseDevice(const Json &object, const std::string &interfaceTlType, const std::string &place)
{
    if (!object.is_object())
        throw std::runtime_error(place + " is not an object");
    DeviceRecord device;
    device.id = requiredText(object, "id", place);
    device.vendor = optionalText(object, "vendor", place);
    device.model = optionalText(object, "model", place);
    device.serial = optionalText(object, "serial", place);
    device.userName = optionalText(object, "userName", place);
    device.tlType = orElse(optionalText(object, "tlType", place), interfaceTlType);
    device.displayName = orElse(optionalText(object, "displayName", place), madeUpDisplayName(device));
    device.accessStatus = GenTL::DEVICE_ACCESS_STATUS_READWRITE;
    return device;
}

/// Calls parseElement(element, place) for each element of the array under a key. It returns the element's ID,
/// which no other of the array may have.
template <typename ParseElement>
void forEachElement(const Json &object, const char *key, const std::string &place, ParseElement parseElement)
{
    const Json &array = object.at(key);
    if (!array.is_array())
        throw std::runtime_error(place + ": \"" + key + "\" is not an array");
    const auto placeOf
        = [&](std::size_t index) { return place + "." + key + "[" + std::to_string(index) + "]"; };
    std::map<std::string, std::size_t> known; // IDs, and the index of each.
    for (std::size_t i = 0; i < array.size(); ++i) {
        const auto [first, isNew] = known.emplace(parseElement(array[i], placeOf(i)), i);
        if (!isNew)
            throw std::runtime_error(placeOf(i) + ": \"id\" is that of " + placeOf(first->second));
    }
}

Json parseDocument(const std::string &text)
{
    try {
        return Json::parse(text);
    } catch (const Json::exception &error) { // A number can be out of range as well.
        throw std::runtime_error(error.what());
    }
}

SceneInterface parseInterface(const Json &object, const std::string &place)
{
    if (!object.is_object())
        throw std::runtime_error(place + " is not an object");
    SceneInterface parsed;
    InterfaceRecord &record = parsed.record;
    record.id = requiredText(object, "id", place);
    record.displayName = orElse(optionalText(object, "name", place), record.id);
    record.tlType = orElse(optionalText(object, "tlType", place), GenTL::TLTypeCustomName);
    if (object.contains("devices"))
        forEachElement(object, "devices", place, [&](const Json &device, const std::string &devicePlace) {
            parsed.devices.push_back(parseDevice(device, record.tlType, devicePlace));
            return parsed.devices.back().id;
        });
    return parsed;
}

} // namespace

Scene defaultScene()
{
    const auto camera = [](const std::string &number) {
        DeviceRecord device;
        device.id = "corvix-simulator-" + number;
        device.vendor = "Orvelle";
        device.model = "Camera Simulator";
        device.tlType = GenTL::TLTypeCustomName;
        device.serial = "SIM" + number;
        device.displayName = madeUpDisplayName(device);
        device.accessStatus = GenTL::DEVICE_ACCESS_STATUS_READWRITE;
        return device;
    };
    return {{{"simulator", "Camera Simulator", GenTL::TLTypeCustomName}, {camera("0001"), camera("0002")}}};
}

Scene parseScene(const std::string &text)
{
    const Json document = parseDocument(text);
    if (!document.is_object() || !document.contains("interfaces"))
        throw std::runtime_error("there is no object with \"interfaces\"");
    Scene scene;
    forEachElement(document, "interfaces", "scene", [&](const Json &element, const std::string &place) {
        scene.push_back(parseInterface(element, place));
        return scene.back().record.id;
    });
    return scene;
}
