#include "tests/features/ScriptedDevice.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

/// Returns whether a limit forbids the value.
bool isOutside(const NodeState &state, const NodeValue &value)
{
    const auto isSet = [](const NodeValue &limit) { return limit.index() != 0; };
    if (const auto *const entry = std::get_if<std::string>(&value); entry && !state.availableEntries.empty())
        return std::find(state.availableEntries.begin(), state.availableEntries.end(), *entry)
            == state.availableEntries.end();
    return (isSet(state.minimum) && value < state.minimum) || (isSet(state.maximum) && state.maximum < value);
}

} // namespace

ScriptedDevice::Feature &ScriptedDevice::add(const std::string &name, const NodeValue &value)
{
    static constexpr NodeType types[] = {NodeType::Command, NodeType::Integer, NodeType::Float,
        NodeType::Boolean, NodeType::String, NodeType::Register};
    m_order.push_back(name);
    Feature &feature = m_features[name];
    feature.info.name = name;
    feature.info.type = types[value.index()];
    feature.info.isStreamable = value.index() != 0;
    feature.state.name = name;
    feature.state.access = value.index() != 0 ? NodeAccess::ReadWrite : NodeAccess::WriteOnly;
    feature.state.value = value;
    return feature;
}

ScriptedDevice::Feature &ScriptedDevice::addEntries(
    const std::string &name, const std::vector<std::string> &entries)
{
    Feature &feature = add(name, entries.front());
    feature.info.type = NodeType::Enumeration;
    feature.state.availableEntries = entries;
    return feature;
}

ScriptedDevice::Feature &ScriptedDevice::addCommand(const std::string &name)
{
    return add(name, {});
}

void ScriptedDevice::select(const std::string &selector, const std::vector<std::string> &names)
{
    m_features.at(selector).info.selected = names;
    for (const std::string &name : names)
        m_features.at(name).info.selectors.push_back(selector);
}

std::map<std::string, NodeValue> ScriptedDevice::changedValues() const
{
    std::map<std::string, NodeValue> changed;
    for (const auto &[key, value] : m_values) {
        if (value != m_features.at(key.substr(0, key.find('/'))).state.value)
            changed[key] = value;
    }
    return changed;
}

NodeValue &ScriptedDevice::storedValue(const std::string &name)
{
    const Feature &feature = m_features.at(name);
    std::string key = name;
    for (const std::string &selector : feature.info.selectors) {
        const NodeValue &selected = storedValue(selector);
        const auto *const number = std::get_if<std::int64_t>(&selected);
        key += '/' + selector + '=' + (number ? std::to_string(*number) : std::get<std::string>(selected));
    }
    return m_values.try_emplace(key, feature.state.value).first->second;
}

NodeState ScriptedDevice::stateOf(const std::string &name)
{
    const Feature &feature = m_features.at(name);
    NodeState state = feature.state;
    state.value = storedValue(name);
    if (feature.rule)
        feature.rule(state);
    return state;
}

CvxResult ScriptedDevice::check(const std::string &name)
{
    if (callCount++ >= callsUntilLoss)
        return {CvxErrorDeviceLost, "The camera is lost."};
    if (m_features.count(name) == 0)
        return {CvxErrorNotFound, "\"" + name + "\" does not exist."};
    return {};
}

CvxResult ScriptedDevice::GetNodes(std::vector<NodeInfo> &nodes) const
{
    for (const std::string &name : m_order)
        nodes.push_back(m_features.at(name).info);
    return {};
}

CvxResult ScriptedDevice::ReadStates(const std::vector<std::string> &names, std::vector<NodeState> &states)
{
    std::vector<NodeState> read;
    for (const std::string &name : names) {
        if (CvxResult result = check(name); !result)
            return result;
        read.push_back(stateOf(name));
    }
    states = std::move(read);
    return {};
}

CvxResult ScriptedDevice::Read(const std::string &name, NodeValue &value)
{
    if (CvxResult result = check(name); !result)
        return result;
    value = stateOf(name).value;
    return {};
}

CvxResult ScriptedDevice::Write(const std::string &name, const NodeValue &value)
{
    if (CvxResult result = check(name); !result)
        return result;
    const NodeState state = stateOf(name);
    if (state.lockReason != LockReason::None)
        return {CvxErrorNotWritable, "\"" + name + "\" cannot be written."};
    if (isOutside(state, value))
        return {CvxErrorOutOfRange, "\"" + name + "\" is out of range."};
    writes.push_back(name);
    NodeValue accepted = value;
    if (const auto &onWrite = m_features.at(name).onWrite)
        onWrite(accepted);
    storedValue(name) = accepted;
    return {};
}

CvxResult ScriptedDevice::Execute(const std::string &name)
{
    if (CvxResult result = check(name); !result)
        return result;
    if (stateOf(name).lockReason != LockReason::None)
        return {CvxErrorNotWritable, "\"" + name + "\" cannot be executed."};
    writes.push_back(name);
    if (const auto &onWrite = m_features.at(name).onWrite) {
        NodeValue none;
        onWrite(none);
    }
    return {};
}

CvxResult ScriptedDevice::BeginTemporaryChanges()
{
    if (m_valuesBefore)
        return {CvxErrorAlreadyStarted, "Temporary changes have begun already."};
    m_valuesBefore = m_values;
    return {};
}

CvxResult ScriptedDevice::EndTemporaryChanges(TemporaryChanges how)
{
    if (!m_valuesBefore)
        return {CvxErrorNotAvailable, "No temporary changes have begun."};
    if (how == TemporaryChanges::PutBack)
        m_values = std::move(*m_valuesBefore);
    m_valuesBefore.reset();
    return {};
}
