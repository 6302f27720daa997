#include "tests/device/host/ScriptedCamera.h"

using namespace CvxCPP;

std::vector<NodeInfo> ScriptedCamera::nodes() const
{
    std::vector<NodeInfo> nodes;
    const auto add = [&](const char *name, NodeType type) -> NodeInfo & {
        nodes.emplace_back();
        nodes.back().name = nodes.back().displayName = name;
        nodes.back().type = type;
        nodes.back().category = type == NodeType::Category ? "" : "Control";
        return nodes.back();
    };
    add("Control", NodeType::Category);
    add("Width", NodeType::Integer);
    add("OffsetX", NodeType::Integer);
    NodeInfo &selector = add("GainSelector", NodeType::Enumeration);
    selector.entries = {{"All", "All", 0}, {"Red", "Red", 1}};
    selector.selected = {"Gain"};
    add("Gain", NodeType::Float).selectors = {"GainSelector"};
    add("ReverseX", NodeType::Boolean);
    add("UserName", NodeType::String);
    add("Table", NodeType::Register);
    add("Do", NodeType::Command);
    return nodes;
}

std::string ScriptedCamera::key(const std::string &name) const
{
    return name == "Gain" ? name + ' ' + std::get<std::string>(m_values.at("GainSelector")) : name;
}

std::optional<NodeValue> ScriptedCamera::read(const std::string &name) const
{
    const auto found = m_values.find(key(name));
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

std::optional<NodeState> ScriptedCamera::state(const std::string &name) const
{
    NodeState state;
    state.name = name;
    state.access = NodeAccess::ReadWrite;
    state.value = read(name).value_or(NodeValue());
    return state;
}

std::optional<RequestFailedReply> ScriptedCamera::write(const std::string &name, const NodeValue &value)
{
    const auto previous = m_values[key(name)];
    m_values[key(name)] = value;
    if (std::get<std::int64_t>(m_values["Width"]) + std::get<std::int64_t>(m_values["OffsetX"]) <= 200)
        return std::nullopt;
    m_values[key(name)] = previous;
    return RequestFailedReply{
        DeviceFailure::OutOfRange, '"' + name + "\" cannot be written: the value is too large."};
}

std::vector<std::string> ScriptedCamera::dependents(const std::string &name) const
{
    if (name == "GainSelector")
        return {"Gain"};
    return name == "Width" ? std::vector<std::string>{"OffsetX"} : std::vector<std::string>();
}
