#include "tools/kit/measure/flatfield/CameraPreparation.h"

#include <algorithm>
#include <cctype>
#include <string_view>

using namespace CvxCPP;

namespace {

/// The standard features and the values that they get, in the order in which they are written.
struct Preparation
{
    std::string feature;
    NodeValue value; ///< No value: false or "Off", whichever the feature has.
};

const std::vector<Preparation> &standardPreparations()
{
    static const std::vector<Preparation> preparations{{"TestPattern", {}}, {"ExposureAuto", {}},
        {"GainAuto", {}}, {"BlackLevelAuto", {}}, {"BalanceWhiteAuto", {}}, {"Gamma", 1.0},
        {"LUTEnable", {}}};
    return preparations;
}

/// Returns true for names such as "FlatFieldCorrectionEnable" or "ShadingCorrectionMode".
bool isOwnCorrection(const std::string &name)
{
    std::string lower(name);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    const auto has = [&lower](std::string_view part) { return lower.find(part) != std::string::npos; };
    return (has("flatfield") || has("shadingcorrection") || has("ffc")) && !has("selector");
}

std::vector<Preparation> preparationsFor(const std::vector<NodeInfo> &nodes)
{
    std::vector<Preparation> preparations;
    for (const Preparation &standard : standardPreparations()) {
        const bool isKnown = std::any_of(
            nodes.begin(), nodes.end(), [&](const NodeInfo &node) { return node.name == standard.feature; });
        if (isKnown)
            preparations.push_back(standard);
    }
    for (const NodeInfo &node : nodes) {
        if (isOwnCorrection(node.name))
            preparations.push_back({node.name, {}});
    }
    return preparations;
}

/// Returns the value that switches a feature off; no value for features of other kinds.
NodeValue offValue(const NodeState &state)
{
    if (std::holds_alternative<bool>(state.value))
        return false;
    const std::vector<std::string> &entries = state.availableEntries;
    const bool hasOff = std::find(entries.begin(), entries.end(), "Off") != entries.end();
    return hasOff ? NodeValue(std::string("Off")) : NodeValue();
}

std::string textOf(const NodeValue &value)
{
    if (const auto *const text = std::get_if<std::string>(&value))
        return *text;
    return std::holds_alternative<bool>(value) ? "false" : "1";
}

bool hasValue(const NodeValue &value)
{
    return !std::holds_alternative<std::monostate>(value);
}

} // namespace

Sentence prepareCamera(Device &device, std::vector<std::string> &changes)
{
    std::vector<NodeInfo> nodes;
    if (const CvxResult result = device.GetNodes(nodes); !result)
        return untranslated(result.text);
    for (const Preparation &preparation : preparationsFor(nodes)) {
        std::vector<NodeState> states;
        if (const CvxResult result = device.ReadStates({preparation.feature}, states); !result)
            return untranslated(result.text);
        const NodeState &state = states.front();
        const NodeValue wanted = hasValue(preparation.value) ? preparation.value : offValue(state);
        // A feature that has no value at present has no effect.
        if (!hasValue(state.value) || !hasValue(wanted) || state.value == wanted)
            continue;
        if (const CvxResult result = device.Write(preparation.feature, wanted); !result)
            return untranslated(result.text);
        changes.push_back(preparation.feature + "=" + textOf(wanted));
    }
    return {};
}

bool isLineScanCamera(Device &device)
{
    std::string type;
    return device.ReadString("DeviceScanType", type) && type.rfind("Linescan", 0) == 0;
}

double exposureTimeOf(Device &device)
{
    double time = 0;
    for (const char *name : {"ExposureTime", "ExposureTimeAbs"}) {
        if (device.ReadFloat(name, time))
            break;
    }
    return time;
}
