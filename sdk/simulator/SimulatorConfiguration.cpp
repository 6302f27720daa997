#include "sdk/simulator/SimulatorConfiguration.h"

#include <limits>
#include <map>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace {

using Json = nlohmann::json;

constexpr char simulatedVersion[] = "1.0";

/// Returns the string under a key, or an empty string if the key is absent.
std::string optionalString(const Json &object, const char *key, const std::string &place)
{
    const auto value = object.find(key);
    if (value == object.end())
        return {};
    if (!value->is_string())
        throw std::runtime_error(place + ": \"" + key + "\" is not a string");
    std::string text = value->get<std::string>();
    if (text.find('\0') != std::string::npos) // Consumers read only the part before a NUL.
        throw std::runtime_error(place + ": \"" + key + "\" contains a NUL character");
    return text;
}

std::string requiredString(const Json &object, const char *key, const std::string &place)
{
    std::string text = optionalString(object, key, place);
    if (text.empty())
        throw std::runtime_error(place + ": \"" + key + "\" is missing or empty");
    return text;
}

std::string orElse(const std::string &text, const std::string &fallback)
{
    return text.empty() ? fallback : text;
}

std::string joinedDisplayName(const DeviceRecord &device)
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

/// Returns the integer under a key, or nothing if the key is absent.
template <typename Integer>
std::optional<Integer> optionalInteger(
    const Json &object, const char *key, Integer min, Integer max, const std::string &place)
{
    const auto value = object.find(key);
    if (value == object.end())
        return std::nullopt;
    const bool isInRange = value->is_number_unsigned()
        && value->get<std::uint64_t>() >= static_cast<std::uint64_t>(min)
        && value->get<std::uint64_t>() <= static_cast<std::uint64_t>(max);
    if (!isInRange)
        throw std::runtime_error(place + ": \"" + key + "\" is not an integer from " + std::to_string(min)
            + " to " + std::to_string(max));
    return value->get<Integer>();
}

/// Returns the Boolean value under a key, or nothing if the key is absent.
std::optional<bool> optionalBoolean(const Json &object, const char *key, const std::string &place)
{
    const auto value = object.find(key);
    if (value == object.end())
        return std::nullopt;
    if (!value->is_boolean())
        throw std::runtime_error(place + ": \"" + key + "\" is neither true nor false");
    return value->get<bool>();
}

SensorKeys parseSensor(const Json &object, const std::string &place)
{
    constexpr int minSize = 64; // Pixels.
    constexpr int maxSize = 32768;
    SensorKeys keys;
    keys.width = optionalInteger(object, "sensorWidth", minSize, maxSize, place);
    keys.height = optionalInteger(object, "sensorHeight", minSize, maxSize, place);
    keys.isColor = optionalBoolean(object, "color", place);
    keys.isLineScan = optionalBoolean(object, "lineScan", place);
    keys.taps = optionalInteger(object, "taps", 1, 8, place);
    keys.seed
        = optionalInteger<std::uint64_t>(object, "seed", 0, std::numeric_limits<std::uint64_t>::max(), place);
    keys.hasFlaws = optionalBoolean(object, "flaws", place);
    return keys;
}

DeviceRecord parseDevice(const Json &object, const std::string &interfaceTlType, const std::string &place)
{
    if (!object.is_object())
        throw std::runtime_error(place + " is not an object");
    DeviceRecord device;
    device.id = requiredString(object, "id", place);
    device.vendor = optionalString(object, "vendor", place);
    device.model = optionalString(object, "model", place);
    device.serial = optionalString(object, "serial", place);
    device.userName = optionalString(object, "userName", place);
    device.tlType = orElse(optionalString(object, "tlType", place), interfaceTlType);
    device.displayName = orElse(optionalString(object, "displayName", place), joinedDisplayName(device));
    device.version = simulatedVersion;
    device.accessStatus = GenTL::DEVICE_ACCESS_STATUS_READWRITE;
    return device;
}

/// Calls parseElement(element, place) for each element of the array under a key. parseElement()
/// returns the element's ID, which must be unique in the array.
template <typename ParseElement>
void forEachElement(const Json &object, const char *key, const std::string &prefix, ParseElement parseElement)
{
    const Json &array = object.at(key);
    if (!array.is_array())
        throw std::runtime_error(prefix + key + " is not an array");
    const auto placeOf = [&](std::size_t index) { return prefix + key + "[" + std::to_string(index) + "]"; };
    std::map<std::string, std::size_t> indexById;
    for (std::size_t i = 0; i < array.size(); ++i) {
        const auto [first, isNew] = indexById.emplace(parseElement(array[i], placeOf(i)), i);
        if (!isNew)
            throw std::runtime_error(placeOf(i) + ": \"id\" is already used by " + placeOf(first->second));
    }
}

Json parseDocument(const std::string &text)
{
    try {
        return Json::parse(text);
    } catch (const Json::exception &error) { // A number out of range is not a parse_error.
        throw std::runtime_error(error.what());
    }
}

SimulatedInterface parseInterface(const Json &object, const std::string &place)
{
    if (!object.is_object())
        throw std::runtime_error(place + " is not an object");
    SimulatedInterface parsed;
    InterfaceRecord &record = parsed.record;
    record.id = requiredString(object, "id", place);
    record.displayName = orElse(optionalString(object, "name", place), record.id);
    record.tlType = orElse(optionalString(object, "tlType", place), GenTL::TLTypeCustomName);
    if (object.contains("devices"))
        forEachElement(
            object, "devices", place + ".", [&](const Json &device, const std::string &devicePlace) {
                parsed.devices.push_back(parseDevice(device, record.tlType, devicePlace));
                parsed.sensors.emplace(parsed.devices.back().id, parseSensor(device, devicePlace));
                return parsed.devices.back().id;
            });
    return parsed;
}

} // namespace

SimulatorConfiguration defaultConfiguration()
{
    const auto camera = [](const std::string &number) {
        DeviceRecord device;
        device.id = "corvix-simulator-" + number;
        device.vendor = "Orvelle";
        device.model = "Camera Simulator";
        device.tlType = GenTL::TLTypeCustomName;
        device.serial = "SIM" + number;
        device.displayName = joinedDisplayName(device);
        device.version = simulatedVersion;
        device.accessStatus = GenTL::DEVICE_ACCESS_STATUS_READWRITE;
        return device;
    };
    return {{{"simulator", "Camera Simulator", GenTL::TLTypeCustomName}, {camera("0001"), camera("0002")}}};
}

SimulatorConfiguration parseConfiguration(const std::string &text)
{
    const Json document = parseDocument(text);
    if (!document.is_object() || !document.contains("interfaces"))
        throw std::runtime_error("the file contains no object with \"interfaces\"");
    SimulatorConfiguration configuration;
    forEachElement(document, "interfaces", "", [&](const Json &element, const std::string &place) {
        configuration.push_back(parseInterface(element, place));
        return configuration.back().record.id;
    });
    return configuration;
}
