#include "tools/camerasetup/details/SelectorCalls.h"

#include "sdk/features/FeatureText.h"

using namespace CvxCPP;

namespace {

constexpr std::size_t maxColumns = 64; ///< A selector of a large table has thousands of values.

std::int64_t integerOr(const NodeValue &value, std::int64_t fallback)
{
    const auto *const integer = std::get_if<std::int64_t>(&value);
    return integer ? *integer : fallback;
}

std::vector<NodeValue> integerValues(const NodeState &state, bool &isShortened)
{
    std::vector<NodeValue> values;
    const std::int64_t present = integerOr(state.value, 0);
    const std::int64_t maximum = integerOr(state.maximum, present);
    const std::int64_t step = std::max<std::int64_t>(1, integerOr(state.increment, 1));
    std::int64_t value = integerOr(state.minimum, present);
    while (value <= maximum && values.size() < maxColumns) {
        values.emplace_back(value);
        if (value > maximum - step)
            return values;
        value += step;
    }
    isShortened = true;
    return values;
}

/// Returns the values that the selector allows; the present one if it cannot be written.
std::vector<NodeValue> allowedValues(const NodeState &state, bool &isShortened)
{
    if (state.lockReason != LockReason::None)
        return {state.value};
    if (std::holds_alternative<bool>(state.value))
        return {false, true};
    if (std::holds_alternative<std::int64_t>(state.value))
        return integerValues(state, isShortened);
    return {state.availableEntries.begin(), state.availableEntries.end()};
}

/// Reads the columns. The selector keeps the last value.
CvxResult readColumns(Device &device, SelectorControl &control, const std::string &selector,
    const std::vector<std::string> &features, SelectorValues &values, const FeatureProgress &progress)
{
    std::vector<NodeState> states;
    if (CvxResult result = readStates(device, {selector}, states); !result)
        return result;
    const std::vector<NodeValue> allowed = allowedValues(states.front(), values.isShortened);
    for (const NodeValue &value : allowed) {
        if (!progress(values.columns.size(), allowed.size()))
            return {};
        if (CvxResult result = control.select(selector, value); !result)
            return result;
        SelectorColumn column;
        column.value = settingText(value);
        if (CvxResult result = readStates(device, features, column.states); !result)
            return result;
        values.columns.push_back(std::move(column));
    }
    return {};
}

CvxResult writeUnder(
    Device &device, SelectorControl &control, const FeatureDirectory &directory, const SelectedValue &value)
{
    for (const SelectorSetting &setting : value.selectors) {
        const NodeInfo *const info = directory.find(setting.name);
        const auto parsed = settingValue(info ? info->type : NodeType::Enumeration, setting.value);
        if (const auto *const text = std::get_if<std::string>(&parsed))
            return {CvxErrorInvalidParameter, *text};
        if (CvxResult result = control.select(setting.name, std::get<NodeValue>(parsed)); !result)
            return result;
    }
    return device.Write(value.name, value.value);
}

} // namespace

CvxResult readSelectorValues(Device &device, const FeatureDirectory &directory, const std::string &selector,
    const std::vector<std::string> &features, SelectorValues &values, const FeatureProgress &progress)
{
    SelectorControl control(device, directory);
    const CvxResult read = readColumns(device, control, selector, features, values, progress);
    const CvxResult restored = control.restore();
    return read ? restored : read;
}

CvxResult writeSelectedValue(Device &device, const FeatureDirectory &directory, const SelectedValue &value)
{
    SelectorControl control(device, directory);
    const CvxResult written = writeUnder(device, control, directory, value);
    const CvxResult restored = control.restore();
    return written ? restored : written;
}
