#include "tools/kit/measure/flatfield/CameraPreparation.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <string_view>

using namespace CvxCPP;

namespace {

struct Preparation
{
    const char *feature;
    NodeValue value;
};

/// The standard features, in the order in which they are written.
const std::vector<Preparation> &standardPreparations()
{
    static const std::vector<Preparation> preparations{{"TestPattern", std::string("Off")},
        {"ExposureAuto", std::string("Off")}, {"GainAuto", std::string("Off")},
        {"BlackLevelAuto", std::string("Off")}, {"BalanceWhiteAuto", std::string("Off")}, {"Gamma", 1.0},
        {"LUTEnable", false}};
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

/// Returns the value that switches a feature off; none for features of other kinds.
NodeValue offValue(const NodeInfo &info)
{
    if (info.type == NodeType::Boolean)
        return false;
    const bool hasOff = std::any_of(info.entries.begin(), info.entries.end(),
        [](const EnumerationEntry &entry) { return entry.name == "Off"; });
    return hasOff ? NodeValue(std::string("Off")) : NodeValue();
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
        const NodeValue off = offValue(node);
        if (isOwnCorrection(node.name) && !std::holds_alternative<std::monostate>(off))
            preparations.push_back({node.name.c_str(), off});
    }
    return preparations;
}

std::string textOf(const NodeValue &value)
{
    if (const auto *const text = std::get_if<std::string>(&value))
        return *text;
    return std::holds_alternative<bool>(value) ? "false" : "1";
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
        // A feature that has no value at present has no effect.
        if (states.front().value == preparation.value
            || std::holds_alternative<std::monostate>(states.front().value))
            continue;
        if (const CvxResult result = device.Write(preparation.feature, preparation.value); !result)
            return untranslated(result.text);
        changes.push_back(preparation.feature + ("=" + textOf(preparation.value)));
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
