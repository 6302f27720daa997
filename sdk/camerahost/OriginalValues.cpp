#include "sdk/camerahost/OriginalValues.h"

#include <algorithm>
#include <set>

using namespace CvxCPP;

namespace {

const NodeInfo *findInfo(NodeMap &nodes, const std::string &name)
{
    const auto &infos = nodes.nodes();
    const auto found = std::find_if(
        infos.begin(), infos.end(), [&name](const NodeInfo &info) { return info.name == name; });
    return found != infos.end() ? &*found : nullptr;
}

bool isSelector(NodeMap &nodes, const std::string &name)
{
    const NodeInfo *const info = findInfo(nodes, name);
    return info && !info->selected.empty();
}

std::optional<NodeValue> readNode(NodeMap &nodes, const std::string &name)
{
    auto value = nodes.read(name);
    auto *const known = std::get_if<NodeValue>(&value);
    return known ? std::optional(std::move(*known)) : std::nullopt;
}

/// Adds the selectors on which the node depends with their values, each after its own selectors.
void addSelectors(NodeMap &nodes, const NodeInfo &node, std::set<std::string> &visited,
    std::vector<SelectedValue::Selector> &selectors)
{
    for (const std::string &name : node.selectors) {
        const NodeInfo *const selector = findInfo(nodes, name);
        if (!selector || !visited.insert(name).second)
            continue;
        addSelectors(nodes, *selector, visited, selectors);
        if (auto value = readNode(nodes, name))
            selectors.push_back({name, std::move(*value)});
    }
}

/// Writes values and knows what has happened.
class Writing
{
public:
    explicit Writing(NodeMap &nodes) : m_nodes(nodes) { }

    /// Returns why the value cannot be put back; empty if the feature has the value.
    std::string putBack(const SelectedValue &value)
    {
        for (const SelectedValue::Selector &selector : value.selectors) {
            if (std::string problem = write(selector.name, selector.value); !problem.empty())
                return problem;
        }
        return write(value.name, value.value);
    }

    std::vector<std::string> written;

private:
    /// Writes nothing if the feature has the value: it may be locked.
    std::string write(const std::string &name, const NodeValue &value)
    {
        if (readNode(m_nodes, name) == value)
            return {};
        if (auto failure = m_nodes.write(name, value))
            return failure->text;
        written.push_back(name);
        return {};
    }

    NodeMap &m_nodes;
};

/// A value that has to be put back, and why that has not succeeded yet.
struct Pending
{
    SelectedValue value;
    std::string reason;
};

/// Tries the values, the last one first, until the camera accepts no more of them. Leaves those.
void putBackAll(Writing &writing, std::vector<Pending> &values, OriginalValues::Clock::time_point deadline)
{
    std::size_t triedCount = 0;
    do {
        triedCount = values.size();
        for (std::size_t i = values.size(); i-- > 0;) {
            if (OriginalValues::Clock::now() >= deadline) {
                values[i].reason = "There was no time left for the feature \"" + values[i].value.name + "\".";
                continue;
            }
            values[i].reason = writing.putBack(values[i].value);
        }
        values.erase(std::remove_if(values.begin(), values.end(),
                         [](const Pending &value) { return value.reason.empty(); }),
            values.end());
    } while (!values.empty() && values.size() < triedCount);
}

} // namespace

std::optional<SelectedValue> OriginalValues::findNew(NodeMap &nodes, const std::string &name) const
{
    const NodeInfo *const info = findInfo(nodes, name);
    if (!info || info->type == NodeType::Command || info->type == NodeType::Category)
        return std::nullopt;
    SelectedValue value{{}, name, {}};
    std::set<std::string> visited;
    addSelectors(nodes, *info, visited, value.selectors);
    const bool isKnown = std::any_of(m_values.begin(), m_values.end(), [&value](const SelectedValue &known) {
        return known.name == value.name && known.selectors == value.selectors;
    });
    auto present = isKnown ? std::nullopt : readNode(nodes, name);
    if (!present)
        return std::nullopt;
    value.value = std::move(*present);
    return value;
}

OriginalValues::PutBack OriginalValues::putBack(NodeMap &nodes, Clock::time_point deadline)
{
    std::vector<Pending> settings;
    std::vector<Pending> selectors;
    for (SelectedValue &value : m_values)
        (isSelector(nodes, value.name) ? selectors : settings).push_back({std::move(value), {}});
    m_values.clear();
    Writing writing(nodes);
    putBackAll(writing, settings, deadline);
    putBackAll(writing, selectors, deadline);
    PutBack result{std::move(writing.written), {}, {}};
    for (auto *const values : {&settings, &selectors}) {
        for (Pending &pending : *values) {
            m_values.push_back(pending.value);
            result.refused.push_back(std::move(pending.value));
            result.reasons.push_back(std::move(pending.reason));
        }
    }
    return result;
}
