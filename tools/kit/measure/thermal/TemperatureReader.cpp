#include "tools/kit/measure/thermal/TemperatureReader.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

/// Names of the standard, and those of cameras that are older than it.
constexpr const char *temperatureFeatures[]
    = {"DeviceTemperature", "TemperatureAbs", "DeviceTemperatureRaw", "SensorTemperature"};

bool isCelsius(const NodeInfo &node)
{
    return node.type == NodeType::Float
        || (node.type == NodeType::Integer && node.unit.find('C') != std::string::npos);
}

/// Returns null if the camera does not have the node at present.
const NodeInfo *findNode(Device &device, const std::vector<NodeInfo> &nodes, const std::string &name)
{
    const auto node = std::find_if(
        nodes.begin(), nodes.end(), [&name](const NodeInfo &info) { return info.name == name; });
    std::vector<NodeState> states;
    if (node == nodes.end() || !device.ReadStates({name}, states) || states.empty())
        return nullptr;
    return states.front().access == NodeAccess::NotImplemented ? nullptr : &*node;
}

void addPlaces(Device &device, const std::string &selector, TemperatureSource &source)
{
    std::vector<NodeState> states;
    if (!device.ReadStates({selector}, states) || states.empty())
        return;
    source.selector = selector;
    source.places = states.front().availableEntries;
    const bool isFixed = states.front().lockReason != LockReason::None;
    if (const auto *const present = std::get_if<std::string>(&states.front().value);
        present && (isFixed || source.places.empty()))
        source.places = {*present};
}

std::optional<double> number(const NodeValue &value)
{
    if (const auto *const real = std::get_if<double>(&value))
        return *real;
    const auto *const integer = std::get_if<std::int64_t>(&value);
    return integer ? std::optional(static_cast<double>(*integer)) : std::nullopt;
}

} // namespace

Sentence findTemperatures(Device &device, TemperatureSource &source)
{
    std::vector<NodeInfo> nodes;
    if (const CvxResult result = device.GetNodes(nodes); !result)
        return Sentence{QT_TRANSLATE_NOOP("Sentence", "The features cannot be read: %1"), {result.text}};
    for (const char *name : temperatureFeatures) {
        const NodeInfo *const node = findNode(device, nodes, name);
        if (!node || !isCelsius(*node))
            continue;
        source = {name, {}, {}};
        if (!node->selectors.empty())
            addPlaces(device, node->selectors.front(), source);
        if (source.places.empty())
            source.places = {""};
        return {};
    }
    return Sentence{QT_TRANSLATE_NOOP(
        "Sentence", "The camera has no feature DeviceTemperature, so it does not report its temperature.")};
}

TemperatureReading readTemperatures(Device &device, const TemperatureSource &source)
{
    TemperatureReading reading;
    const auto succeeds = [&reading](const CvxResult &result) {
        if (!result && reading.problem)
            reading.problem = result;
        return bool(result);
    };
    const bool hasSelector = !source.selector.empty();
    std::string before;
    reading.celsius.resize(source.places.size());
    if (hasSelector && !succeeds(device.ReadString(source.selector, before)))
        return reading;
    std::string present = before;
    for (std::size_t index = 0; index < source.places.size(); ++index) {
        const std::string &place = source.places[index];
        if (hasSelector && present != place && !succeeds(device.WriteString(source.selector, place)))
            continue;
        present = place;
        NodeValue value;
        if (succeeds(device.Read(source.feature, value)))
            reading.celsius[index] = number(value);
    }
    if (hasSelector && present != before)
        succeeds(device.WriteString(source.selector, before));
    return reading;
}
