#include "tools/kit/measure/taps/TapControl.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

struct SettingNames
{
    const char *selector;
    std::vector<std::string> features; ///< The first one that the camera has counts.
};

const SettingNames &namesOf(TapSetting setting)
{
    static const SettingNames gain{"GainSelector", {"Gain", "GainRaw", "GainAbs"}};
    static const SettingNames blackLevel{
        "BlackLevelSelector", {"BlackLevel", "BlackLevelRaw", "BlackLevelAbs"}};
    return setting == TapSetting::Gain ? gain : blackLevel;
}

const NodeInfo *findNode(const std::vector<NodeInfo> &nodes, const std::string &name)
{
    const auto found = std::find_if(
        nodes.begin(), nodes.end(), [&name](const NodeInfo &node) { return node.name == name; });
    return found != nodes.end() ? &*found : nullptr;
}

Sentence missing(const std::string &feature)
{
    return {QT_TRANSLATE_NOOP(
                "Sentence", "The camera has no feature \"%1\", so its taps can be measured, but not set."),
        {feature}};
}

/// Returns the entries for the taps, all of one kind, or nothing if no kind has them all.
std::optional<std::vector<std::string>> tapEntries(
    const std::vector<std::string> &available, std::size_t taps)
{
    for (const char *const prefix : {"Tap", "AnalogTap", "DigitalTap"}) {
        std::vector<std::string> entries;
        for (std::size_t tap = 1; tap <= taps; ++tap)
            entries.push_back(prefix + std::to_string(tap));
        const bool hasAll = std::all_of(entries.begin(), entries.end(), [&available](const auto &entry) {
            return std::find(available.begin(), available.end(), entry) != available.end();
        });
        if (hasAll)
            return entries;
    }
    return std::nullopt;
}

double numberOf(const NodeValue &value, double otherwise)
{
    if (const auto *const integer = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*integer);
    const auto *const number = std::get_if<double>(&value);
    return number ? *number : otherwise;
}

/// Selects the tap and reads its value.
CvxResult readTap(Device &device, const TapControl &control, std::size_t tap, TapValue &value)
{
    std::vector<NodeState> states;
    CvxResult result = device.WriteString(control.selector, control.entries[tap]);
    if (result)
        result = device.ReadStates({control.feature}, states);
    if (!result)
        return result;
    const NodeState &state = states.front();
    const double present = numberOf(state.value, 0);
    value = {present, numberOf(state.minimum, present), numberOf(state.maximum, present),
        numberOf(state.increment, control.isInteger ? 1 : 0)};
    return result;
}

} // namespace

std::variant<TapControl, Sentence> findTapControl(Device &device, TapSetting setting, std::size_t taps)
{
    const SettingNames &names = namesOf(setting);
    std::vector<NodeInfo> nodes;
    std::vector<NodeState> states;
    CvxResult result = device.GetNodes(nodes);
    if (!result)
        return untranslated(result.text);
    if (!findNode(nodes, names.selector))
        return missing(names.selector);
    const auto known = std::find_if(names.features.begin(), names.features.end(),
        [&nodes](const std::string &name) { return findNode(nodes, name) != nullptr; });
    if (known == names.features.end())
        return missing(names.features.front());
    result = device.ReadStates({names.selector}, states);
    if (!result)
        return untranslated(result.text);
    auto entries = tapEntries(states.front().availableEntries, taps);
    if (!entries)
        return Sentence{
            QT_TRANSLATE_NOOP("Sentence",
                "\"%1\" does not have the entries Tap1 to Tap%2, so the taps can be measured, but "
                "not set. Choose the layout of the camera's taps."),
            {std::string(names.selector), SentenceNumber{static_cast<double>(taps), 0}}};
    const NodeInfo &node = *findNode(nodes, *known);
    return TapControl{setting, names.selector, *known, std::move(*entries), node.type == NodeType::Integer,
        node.unit == "dB"};
}

Sentence readTapValues(Device &device, const TapControl &control, std::vector<TapValue> &values)
{
    std::vector<TapValue> read(control.entries.size());
    for (std::size_t tap = 0; tap < read.size(); ++tap) {
        if (const CvxResult result = readTap(device, control, tap, read[tap]); !result)
            return untranslated(result.text);
    }
    values = std::move(read);
    return {};
}

double allowedValue(const TapValue &limits, double value)
{
    if (limits.increment > 0) {
        const double steps = std::round((value - limits.minimum) / limits.increment);
        const double maxSteps = std::floor((limits.maximum - limits.minimum) / limits.increment + 1e-9);
        return limits.minimum + std::clamp(steps, 0.0, std::max(maxSteps, 0.0)) * limits.increment;
    }
    return std::clamp(value, limits.minimum, std::max(limits.minimum, limits.maximum));
}

Sentence writeTapValues(Device &device, const TapControl &control, const std::vector<double> &values,
    std::vector<TapValue> &present)
{
    for (std::size_t tap = 0; tap < values.size(); ++tap) {
        const double value = allowedValue(present[tap], values[tap]);
        if (value == present[tap].value)
            continue;
        CvxResult result = device.WriteString(control.selector, control.entries[tap]);
        if (result)
            result = control.isInteger
                ? device.WriteInteger(control.feature, static_cast<std::int64_t>(std::llround(value)))
                : device.WriteFloat(control.feature, value);
        double stored = value;
        if (result && !control.isInteger)
            static_cast<void>(bool(device.ReadFloat(control.feature, stored))); // The camera may round it.
        if (!result)
            return untranslated(result.text);
        present[tap].value = stored;
    }
    return {};
}
