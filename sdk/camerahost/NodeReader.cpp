#include "sdk/camerahost/NodeReader.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

/// Converts a result to one with a value of a node.
template <typename Value>
AccessResult<NodeValue> toNodeValueResult(AccessResult<Value> result)
{
    if (auto *const problem = std::get_if<AccessProblem>(&result))
        return std::move(*problem);
    return NodeValue(std::get<Value>(std::move(result)));
}

/// Converts a limit of an integer. Limits that no integer reaches do not exist.
NodeValue toInteger(std::optional<long double> limit, long double (*round)(long double))
{
    if (!limit)
        return {};
    const long double integer = round(*limit);
    if (!(integer >= -0x1p63L && integer < 0x1p63L))
        return {};
    return static_cast<std::int64_t>(integer);
}

NodeValue toFloat(std::optional<long double> limit)
{
    return limit ? NodeValue(static_cast<double>(*limit)) : NodeValue();
}

} // namespace

NodeState NodeReader::readState(NodeIndex node)
{
    const CurrentAccess access = m_rules.evaluate(node);
    NodeState state;
    state.name = m_description[node].name;
    state.access = access.access;
    state.lockReason = access.lockReason;
    state.lockingNode = access.lockingNode;
    state.problem = access.problem;
    const NodeType type = *nodeType(m_description[node].kind);
    const bool isThere
        = access.access != NodeAccess::NotImplemented && access.access != NodeAccess::NotAvailable;
    if (!isThere || type == NodeType::Category)
        return state;
    if (type == NodeType::Command) {
        state.isCommandDone = !access.isReadable() || isCommandDone(node);
        return state;
    }
    if (access.isReadable()) {
        auto value = readValue(node);
        if (const auto *const problem = std::get_if<AccessProblem>(&value))
            state.problem = problem->sentence();
        else
            state.value = std::get<NodeValue>(std::move(value));
    }
    if (type == NodeType::Integer || type == NodeType::Float)
        addLimits(node, state);
    else if (type == NodeType::Enumeration)
        state.availableEntries = readAvailableEntries(node);
    else if (type == NodeType::String || type == NodeType::Register)
        state.maxLength = readMaxLength(node);
    return state;
}

AccessResult<NodeValue> NodeReader::readValue(NodeIndex node)
{
    switch (*nodeType(m_description[node].kind)) {
    case NodeType::Integer:
        return toNodeValueResult(m_engine.readInteger(node));
    case NodeType::Float: {
        const auto number = m_engine.readNumber(node);
        if (const auto *const problem = std::get_if<AccessProblem>(&number))
            return *problem;
        return NodeValue(std::get<double>(std::get<Number>(number)));
    }
    case NodeType::Boolean:
        return readBoolean(node);
    case NodeType::Enumeration:
        return readEntry(node);
    case NodeType::String:
        return toNodeValueResult(m_engine.readText(node));
    case NodeType::Register:
        return toNodeValueResult(m_engine.readBytes(node));
    case NodeType::Category:
    case NodeType::Command:
        break;
    }
    return NodeValue();
}

AccessResult<NodeValue> NodeReader::readBoolean(NodeIndex node)
{
    const auto result = m_engine.readInteger(node);
    if (const auto *const problem = std::get_if<AccessProblem>(&result))
        return *problem;
    return NodeValue(std::get<std::int64_t>(result) == onValue(m_description[node]));
}

AccessResult<NodeValue> NodeReader::readEntry(NodeIndex node)
{
    const auto result = m_engine.readInteger(node);
    if (const auto *const problem = std::get_if<AccessProblem>(&result))
        return *problem;
    const std::int64_t value = std::get<std::int64_t>(result);
    for (const EntryDescription &entry : m_description[node].entries) {
        if (entry.value() == value)
            return NodeValue(entry.name);
    }
    return AccessProblem{"the value " + std::to_string(value) + " of \"" + m_description[node].name
        + "\" is none of its entries"};
}

void NodeReader::addLimits(NodeIndex node, NodeState &state)
{
    const Limits limits = m_limits.read(node);
    if (state.problem.empty())
        state.problem = limits.problem;
    if (isFloat(m_description[node].kind)) {
        state.minimum = toFloat(limits.minimum);
        state.maximum = toFloat(limits.maximum);
        state.increment = toFloat(limits.increment);
    } else {
        state.minimum = toInteger(limits.minimum, std::ceil);
        state.maximum = toInteger(limits.maximum, std::floor);
        state.increment = toInteger(limits.increment, std::round);
    }
}

std::int64_t NodeReader::readMaxLength(NodeIndex node)
{
    for (const NodeIndex link : m_engine.valueChain(node)) {
        if (!isRegister(m_description[link].kind))
            continue;
        const auto length = m_engine.readLength(link);
        const auto *const bytes = std::get_if<std::int64_t>(&length);
        return bytes ? *bytes : 0;
    }
    return 0;
}

std::vector<std::string> NodeReader::readAvailableEntries(NodeIndex node)
{
    std::vector<std::string> names;
    for (const EntryDescription &entry : m_description[node].entries) {
        if (m_rules.isAvailable(entry))
            names.push_back(entry.name);
    }
    return names;
}

/// A camera resets the register of the command when it is done.
bool NodeReader::isCommandDone(NodeIndex node)
{
    if (!m_description[node].properties.has(PropertyKind::PValue))
        return true;
    const auto commandValue = readCommandValue(m_description, m_engine, m_description[node]);
    const auto value = m_engine.readInteger(node);
    const auto *const current = std::get_if<std::int64_t>(&value);
    const auto *const running = std::get_if<std::int64_t>(&commandValue);
    return !current || !running || *current != *running;
}

AccessResult<std::int64_t> readCommandValue(
    const Description &description, NodeEngine &engine, const NodeDescription &command)
{
    if (const NodeProperty *const value = command.properties.find(PropertyKind::CommandValue))
        return parseInteger(value->text).value_or(0);
    const auto node = description.find(command.properties.text(PropertyKind::PCommandValue));
    if (!node)
        return AccessProblem{"the command \"" + command.name + "\" has no command value"};
    return engine.readInteger(*node);
}
