#include "tools/camerasetup/details/SelectorCalls.h"

#include "sdk/features/FeatureText.h"

#include <algorithm>
#include <chrono>

using namespace CvxCPP;

namespace {

constexpr std::size_t maxColumns = 64; ///< A selector of a large table has thousands of values.
constexpr std::chrono::milliseconds longestRead{250}; ///< Longer reads are continued by another call.

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

/// Returns the selectors of the selector with their present values. Those that cannot be read are left out.
CvxResult readOuter(Device &device, const FeatureDirectory &directory, const std::string &selector,
    std::vector<SelectorSetting> &outer)
{
    const std::vector<std::string> names = directory.selectorsOf(selector);
    std::vector<NodeState> states;
    if (CvxResult result = readStates(device, names, states); !result)
        return result;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (states[i].value != NodeValue())
            outer.push_back({names[i], settingText(states[i].value)});
    }
    return {};
}

bool areSame(const std::vector<SelectorSetting> &left, const std::vector<SelectorSetting> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](const SelectorSetting &one, const SelectorSetting &other) {
            return one.name == other.name && one.value == other.value;
        });
}

/// Forgets the columns unless they begin the columns of these values.
void keepMatching(
    SelectorValues &values, const std::vector<SelectorSetting> &outer, const std::vector<NodeValue> &allowed)
{
    const bool isMatching = areSame(values.outer, outer) && values.columns.size() <= allowed.size()
        && std::equal(values.columns.begin(), values.columns.end(), allowed.begin(),
            [](const SelectorColumn &column, const NodeValue &value) {
                return column.value == settingText(value);
            });
    if (!isMatching)
        values.columns.clear();
    values.outer = outer;
}

/// Reads the next columns. The selector keeps the last value.
CvxResult readColumns(Device &device, SelectorControl &control, const FeatureDirectory &directory,
    const std::string &selector, const std::vector<std::string> &features, SelectorValues &values,
    const FeatureProgress &progress)
{
    const auto start = std::chrono::steady_clock::now();
    std::vector<SelectorSetting> outer;
    if (CvxResult result = readOuter(device, directory, selector, outer); !result)
        return result;
    std::vector<NodeState> states;
    if (CvxResult result = readStates(device, {selector}, states); !result)
        return result;
    values.isShortened = false;
    const std::vector<NodeValue> allowed = allowedValues(states.front(), values.isShortened);
    keepMatching(values, outer, allowed);
    while (values.columns.size() < allowed.size()) {
        if (!progress(values.columns.size(), allowed.size()))
            return {};
        const NodeValue &value = allowed[values.columns.size()];
        if (CvxResult result = control.select(selector, value); !result)
            return result;
        SelectorColumn column;
        column.value = settingText(value);
        if (CvxResult result = readStates(device, features, column.states); !result)
            return result;
        values.columns.push_back(std::move(column));
        if (std::chrono::steady_clock::now() - start > longestRead)
            break;
    }
    values.isComplete = values.columns.size() == allowed.size();
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
    const CvxResult read = readColumns(device, control, directory, selector, features, values, progress);
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
