#include "tools/imageviewer/panel/WhiteBalanceCall.h"

#include "tools/imageviewer/panel/WhiteBalance.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

using CvxCPP::CvxResult;
using CvxCPP::Device;
using CvxCPP::NodeState;
using CvxCPP::NodeValue;

namespace {

constexpr const char *selectorName = "BalanceRatioSelector";
constexpr const char *automaticName = "BalanceWhiteAuto";
constexpr std::array<const char *, 3> colorNames{"Red", "Green", "Blue"};
constexpr std::array<const char *, 3> ratioNames{"BalanceRatio", "BalanceRatioAbs", "BalanceRatioRaw"};

double numberIn(const NodeValue &value, double fallback)
{
    if (const auto *const integer = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*integer);
    const auto *const number = std::get_if<double>(&value);
    return number ? *number : fallback;
}

std::optional<NodeState> readFeature(Device &device, const std::string &name)
{
    std::vector<NodeState> states;
    if (!device.ReadStates({name}, states) || states.empty() || states.front().value.index() == 0)
        return std::nullopt;
    return states.front();
}

/// Returns the name under which the camera has the factor; empty if it has none.
std::string ratioName(Device &device)
{
    for (const char *const name : ratioNames) {
        if (readFeature(device, name))
            return name;
    }
    return {};
}

BalanceRatios readRatios(Device &device, const std::string &name)
{
    BalanceRatios ratios;
    for (std::size_t color = 0; color < ratios.size(); ++color) {
        if (!device.WriteString(selectorName, colorNames[color]))
            continue; // Some cameras only have factors for red and blue.
        const std::optional<NodeState> state = readFeature(device, name);
        if (!state)
            continue;
        const double value = numberIn(state->value, 1);
        ratios[color] = BalanceRatio{value, numberIn(state->minimum, value), numberIn(state->maximum, value)};
    }
    return ratios;
}

CvxResult writeRatios(Device &device, const std::string &name, bool isInteger, const BalanceRatios &present,
    const std::array<double, 3> &ratios)
{
    for (std::size_t color = 0; color < ratios.size(); ++color) {
        if (!present[color])
            continue;
        CvxResult result = device.WriteString(selectorName, colorNames[color]);
        if (result)
            result = isInteger ? device.WriteInteger(name, std::llround(ratios[color]))
                               : device.WriteFloat(name, ratios[color]);
        if (!result)
            return result;
    }
    return {};
}

CvxResult noRatios()
{
    return {CvxCPP::CvxErrorNotAvailable,
        QCoreApplication::translate("WhiteBalanceCall", "The camera has no white balance ratios.")
            .toStdString()};
}

CvxResult balance(Device &device, const std::array<double, 3> &gains)
{
    const std::optional<NodeState> automatic = readFeature(device, automaticName);
    if (automatic && automatic->value != NodeValue(std::string("Off"))) {
        CvxResult result = device.WriteString(automaticName, "Off");
        if (!result)
            return result;
    }
    const std::optional<NodeState> selector = readFeature(device, selectorName);
    const std::string name = ratioName(device);
    if (!selector || name.empty())
        return noRatios();
    const bool isInteger = name == ratioNames.back();
    const BalanceRatios present = readRatios(device, name);
    const bool isAny = std::any_of(present.begin(), present.end(), [](const auto &ratio) { return ratio; });
    CvxResult result
        = isAny ? writeRatios(device, name, isInteger, present, balancedRatios(present, gains)) : noRatios();
    const CvxResult restored = device.Write(selectorName, selector->value);
    return result ? restored : result;
}

} // namespace

bool canBalanceWhite(const FeatureClient &client)
{
    QStringList names;
    for (const char *const name : ratioNames)
        names.append(QString::fromLatin1(name));
    return client.info(QString::fromLatin1(selectorName)) && !client.firstKnown(names).isEmpty();
}

CameraConnection::Call whiteBalanceCall(const std::array<double, 3> &gains)
{
    return [gains](Device &device) { return balance(device, gains); };
}
