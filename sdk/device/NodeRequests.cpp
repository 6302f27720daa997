#include "sdk/device/NodeRequests.h"

#include "sdk/device/NodeText.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

bool hasValue(const NodeInfo &node)
{
    return node.type != NodeType::Category && node.type != NodeType::Command;
}

constexpr char notFound[] = "does not exist.";
constexpr char hasNoValue[] = "has no value.";

} // namespace

/// Takes a turn for one request.
template <typename Reply, typename Request>
std::variant<Reply, CvxResult> NodeRequests::ask(const Request &request)
{
    const TimePoint end = deadline();
    const auto turn = m_core.takeTurn(end);
    if (const auto *refused = std::get_if<CvxResult>(&turn))
        return *refused;
    return m_core.ask<Reply>(std::get<DeviceGate::Turn>(turn), request, end);
}

CvxResult NodeRequests::error(CvxError code, const std::string &name, const char *reason) const
{
    return m_core.results.result(code, '"' + name + "\" " + reason);
}

CvxResult NodeRequests::readStates(const std::vector<std::string> &names, std::vector<NodeState> &states)
{
    const auto directory = m_core.directory();
    for (const std::string &name : names) {
        if (!directory->find(name))
            return error(CvxErrorNotFound, name, notFound);
    }
    auto answer = ask<NodeStatesReply>(ReadStatesRequest{names});
    if (auto *failed = std::get_if<CvxResult>(&answer))
        return std::move(*failed);
    auto &found = std::get<NodeStatesReply>(answer).states;
    // A camera that was opened again may have other features.
    if (found.size() != names.size())
        return error(CvxErrorNotFound, names[std::min(found.size(), names.size() - 1)], notFound);
    states = std::move(found);
    return {};
}

CvxResult NodeRequests::read(const std::string &name, NodeValue &value)
{
    const auto directory = m_core.directory();
    const NodeInfo *const node = directory->find(name);
    if (!node)
        return error(CvxErrorNotFound, name, notFound);
    if (!hasValue(*node))
        return error(CvxErrorWrongType, name, hasNoValue);
    auto answer = ask<NodeValueReply>(ReadValueRequest{name});
    if (auto *failed = std::get_if<CvxResult>(&answer))
        return std::move(*failed);
    value = std::get<NodeValueReply>(std::move(answer)).value;
    return {};
}

CvxResult NodeRequests::write(const std::string &name, const NodeValue &value)
{
    const auto directory = m_core.directory();
    const NodeInfo *const node = directory->find(name);
    if (!node)
        return error(CvxErrorNotFound, name, notFound);
    // A request without a value would execute a command.
    if (!hasValue(*node) || std::holds_alternative<std::monostate>(value))
        return error(CvxErrorWrongType, name, "cannot be written: there is no value.");
    const TimePoint end = deadline();
    const auto turn = m_core.takeTurn(end);
    if (const auto *refused = std::get_if<CvxResult>(&turn))
        return *refused;
    const auto &taken = std::get<DeviceGate::Turn>(turn);
    const auto selectors = directory->selectorsOf(*node);
    learnSelectors(taken, selectors, end);
    auto answer = m_core.ask<NodeValueReply>(taken, WriteValueRequest{name, value}, end);
    if (auto *failed = std::get_if<CvxResult>(&answer))
        return std::move(*failed);
    m_core.journal.written(name, value, selectors, !node->selected.empty());
    for (const SelectedValue &remembered : std::get<NodeValueReply>(answer).remembered)
        m_core.temporary.remember(remembered);
    return {};
}

/// Reads the selectors whose values the journal does not know yet.
void NodeRequests::learnSelectors(
    const DeviceGate::Turn &turn, const std::vector<std::string> &selectors, TimePoint end)
{
    for (const std::string &selector : selectors) {
        if (m_core.journal.knowsSelector(selector))
            continue;
        const auto answer = m_core.ask<NodeValueReply>(turn, ReadValueRequest{selector}, end);
        if (const auto *reply = std::get_if<NodeValueReply>(&answer))
            m_core.journal.selectorRead(selector, reply->value);
    }
}

CvxResult NodeRequests::writeText(const std::string &name, const std::string &text)
{
    const auto directory = m_core.directory();
    const NodeInfo *const node = directory->find(name);
    if (!node)
        return error(CvxErrorNotFound, name, notFound);
    if (!hasValue(*node))
        return error(CvxErrorWrongType, name, hasNoValue);
    const auto value = nodeValueOf(node->type, text);
    if (!value)
        return error(CvxErrorInvalidParameter, name,
            ("cannot be written: \"" + text + "\" is not a value of this feature.").c_str());
    return write(name, *value);
}

CvxResult NodeRequests::execute(const std::string &name)
{
    const auto directory = m_core.directory();
    const NodeInfo *const node = directory->find(name);
    if (!node)
        return error(CvxErrorNotFound, name, notFound);
    if (node->type != NodeType::Command)
        return error(CvxErrorWrongType, name, "is not a command.");
    const TimePoint end = deadline();
    const auto turn = m_core.takeTurn(end);
    if (const auto *refused = std::get_if<CvxResult>(&turn))
        return *refused;
    auto answer
        = m_core.ask<NodeValueReply>(std::get<DeviceGate::Turn>(turn), WriteValueRequest{name, {}}, end);
    if (auto *failed = std::get_if<CvxResult>(&answer))
        return std::move(*failed);
    m_core.journal.doubtSelectors();
    return {};
}
