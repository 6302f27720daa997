#include "sdk/features/FeatureReader.h"

#include "sdk/features/FeatureText.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

// A look-up table with 4096 entries for each of three colours still fits.
constexpr std::size_t maxReadings = 50000;
constexpr std::uint64_t maxSelectorValues = 4096;

/// Returns the values of an integer from its minimum to its maximum. Returns nothing if there are no limits
/// or too many values.
std::vector<NodeValue> integersOf(const NodeState &state)
{
    const auto *const minimum = std::get_if<std::int64_t>(&state.minimum);
    const auto *const maximum = std::get_if<std::int64_t>(&state.maximum);
    const auto *const stated = std::get_if<std::int64_t>(&state.increment);
    const std::uint64_t increment = stated && *stated > 0 ? static_cast<std::uint64_t>(*stated) : 1;
    if (!minimum || !maximum || *minimum > *maximum)
        return {};
    // Unsigned arithmetic, because the difference of two limits may exceed the range of an integer.
    const std::uint64_t range = static_cast<std::uint64_t>(*maximum) - static_cast<std::uint64_t>(*minimum);
    if (range / increment >= maxSelectorValues)
        return {};
    std::vector<NodeValue> values;
    for (std::uint64_t step = 0; step <= range / increment; ++step)
        values.emplace_back(
            static_cast<std::int64_t>(static_cast<std::uint64_t>(*minimum) + step * increment));
    return values;
}

std::vector<NodeValue> allowedValues(const NodeState &state)
{
    if (std::holds_alternative<std::int64_t>(state.value))
        return integersOf(state);
    if (std::holds_alternative<bool>(state.value))
        return {false, true};
    return {state.availableEntries.begin(), state.availableEntries.end()};
}

} // namespace

FeatureReader::FeatureReader(
    Device &device, const FeatureDirectory &directory, const FeatureProgress &progress)
    : m_device(device), m_directory(directory), m_progress(progress), m_selectors(device, directory)
{ }

CvxResult FeatureReader::read(const std::vector<std::string> &names)
{
    m_done = 0;
    m_total = names.size();
    CvxResult result;
    for (const Group &group : grouped(names)) {
        std::vector<SelectorSetting> selected;
        result = readGroup(group, selected, 0);
        if (!result || m_isCancelled)
            break;
        m_done += group.names.size();
        reportProgress();
    }
    CvxResult restored = m_selectors.restore();
    if (result && !restored && !isDeviceGone(restored))
        addNote(m_notes, "", "A selector cannot be restored: " + restored.text);
    return result && isDeviceGone(restored) ? restored : result;
}

std::vector<FeatureReader::Group> FeatureReader::grouped(const std::vector<std::string> &names) const
{
    std::vector<Group> groups{{}};
    for (const std::string &name : names) {
        auto selectors = m_directory.selectorsOf(name);
        const auto group = std::find_if(
            groups.begin(), groups.end(), [&](const Group &other) { return other.selectors == selectors; });
        if (group == groups.end())
            groups.push_back({std::move(selectors), {name}});
        else
            group->names.push_back(name);
    }
    return groups;
}

/// Goes through the values of the selector at this depth, and of the selectors after it.
CvxResult FeatureReader::readGroup(
    const Group &group, std::vector<SelectorSetting> &selected, std::size_t depth)
{
    if (depth == group.selectors.size())
        return readSelected(group, selected);
    const std::string &name = group.selectors[depth];
    std::vector<NodeState> states;
    if (CvxResult result = m_device.ReadStates({name}, states); !result)
        return result;
    for (const NodeValue &value : selectorValues(states.front())) {
        if (isFull(group) || !reportProgress())
            return {};
        // A selector without a value is the same for all combinations.
        CvxResult result = value.index() == 0 ? readGroup(group, selected, depth + 1)
                                              : readValue(group, selected, depth, value);
        if (!result || m_isCancelled)
            return result;
    }
    return {};
}

/// Reads the combinations with this value of the selector at this depth, unless they are to be skipped.
CvxResult FeatureReader::readValue(
    const Group &group, std::vector<SelectorSetting> &selected, std::size_t depth, const NodeValue &value)
{
    const std::string &name = group.selectors[depth];
    const std::string text = settingText(value);
    selected.push_back({name, text});
    CvxResult result;
    if (!m_skip || !m_skip(selected)) {
        result = m_selectors.select(name, value);
        if (result) {
            result = readGroup(group, selected, depth + 1);
        } else if (!isDeviceGone(result)) {
            addNote(m_notes, name, "The value " + text + " of " + name + " was left out: " + result.text);
            result = {};
        }
        if (m_skip && result && !m_isCancelled)
            m_finished.push_back(selected);
    }
    selected.pop_back();
    return result;
}

/// Returns the values that a selector can be given, or only its present one, which may be no value at all.
std::vector<NodeValue> FeatureReader::selectorValues(const NodeState &state)
{
    if (state.value.index() == 0)
        return {NodeValue()};
    auto values = allowedValues(state);
    if (values.size() == 1)
        return values;
    if (!values.empty() && state.lockReason == LockReason::None)
        return values;
    const std::string reason = values.empty() ? "The values of " + state.name + " are unknown or too many"
                                              : state.name + " cannot be written at present";
    addNote(m_notes, state.name,
        reason + ", so only its present value " + settingText(state.value) + " is used.");
    return {state.value};
}

CvxResult FeatureReader::readSelected(const Group &group, const std::vector<SelectorSetting> &selected)
{
    if (isFull(group) || !reportProgress())
        return {};
    std::vector<NodeState> states;
    if (CvxResult result = readStates(m_device, group.names, states); !result)
        return result;
    for (NodeState &state : states)
        m_readings.push_back({selected, std::move(state)});
    return {};
}

bool FeatureReader::isFull(const Group &group)
{
    if (m_readings.size() < maxReadings)
        return false;
    addNote(m_notes, group.names.front(), "There are too many values of " + group.names.front() + ".");
    return true;
}

bool FeatureReader::reportProgress()
{
    m_isCancelled = m_isCancelled || (m_progress && !m_progress(m_done, m_total));
    return !m_isCancelled;
}
