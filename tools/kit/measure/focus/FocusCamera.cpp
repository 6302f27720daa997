#include "tools/kit/measure/focus/FocusCamera.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {
std::optional<double> numberOf(const NodeValue &value)
{
    if (const auto *const integer = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*integer);
    if (const auto *const real = std::get_if<double>(&value))
        return *real;
    return {};
}

std::string unitOf(Device &device, const std::string &name)
{
    std::vector<NodeInfo> nodes;
    if (!device.GetNodes(nodes))
        return {};
    const auto found = std::find_if(
        nodes.begin(), nodes.end(), [&name](const NodeInfo &node) { return node.name == name; });
    return found != nodes.end() ? found->unit : std::string{};
}
} // namespace

double FocusAxis::nearest(double position) const
{
    const double step = isInteger ? std::max(1.0, increment) : increment;
    double allowed = std::clamp(position, min, max);
    if (step > 0)
        allowed = min + std::round((allowed - min) / step) * step;
    return allowed > max ? allowed - step : allowed;
}

int FocusAxis::decimals() const
{
    if (isInteger)
        return 0;
    const double finest = increment > 0 ? increment : (max - min) / 1000;
    return finest > 0 ? std::clamp(static_cast<int>(std::ceil(-std::log10(finest))), 0, 6) : 0;
}

const std::vector<std::string> &focusFeatureNames()
{
    static const std::vector<std::string> names{"LensFocusPosition", "FocusPosition", "FocusPos",
        "FocusStepper", "OpticFocusPosition", "FocalPower", "Focus"};
    return names;
}

std::optional<FocusAxis> findFocusAxis(Device &device)
{
    for (const std::string &name : focusFeatureNames()) {
        std::vector<NodeState> states;
        if (!device.ReadStates({name}, states) || states.empty())
            continue;
        const NodeState &state = states.front();
        const auto min = numberOf(state.minimum);
        const auto max = numberOf(state.maximum);
        if (state.access != NodeAccess::ReadWrite || !min || !max || *min >= *max)
            continue;
        return FocusAxis{name, unitOf(device, name), *min, *max, numberOf(state.increment).value_or(0),
            std::holds_alternative<std::int64_t>(state.value)};
    }
    return {};
}

CvxResult readPosition(Device &device, const FocusAxis &axis, double &position)
{
    NodeValue value;
    CvxResult result = device.Read(axis.name, value);
    if (const auto number = numberOf(value); result && number)
        position = *number;
    return result;
}

CvxResult writePosition(Device &device, const FocusAxis &axis, double position)
{
    const double allowed = axis.nearest(position);
    return axis.isInteger ? device.WriteInteger(axis.name, std::llround(allowed))
                          : device.WriteFloat(axis.name, allowed);
}

double blackLevelShare(double value, const std::string &unit)
{
    constexpr double percent = 100;
    constexpr double range12 = 4095;
    return std::clamp(value / (unit == "%" ? percent : range12), 0.0, 0.5);
}

double readBlackLevel(Device &device)
{
    NodeValue value;
    if (!device.Read("BlackLevel", value))
        return 0;
    const auto number = numberOf(value);
    return number ? blackLevelShare(*number, unitOf(device, "BlackLevel")) : 0;
}

bool readIsLineScan(Device &device)
{
    std::string type;
    return device.ReadString("DeviceScanType", type) && type.compare(0, 8, "Linescan") == 0;
}
