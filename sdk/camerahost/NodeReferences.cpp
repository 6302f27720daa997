#include "sdk/camerahost/NodeReferences.h"

#include "sdk/camerahost/FormulaCheck.h"
#include "sdk/camerahost/NodeChecks.h"

#include <algorithm>
#include <unordered_set>

namespace {

// Limits for the value of one node. Real descriptions stay below a tenth of them.
constexpr std::uint32_t maxValueDepth = 200;
constexpr std::uint32_t maxAccesses = 10'000;

constexpr std::size_t maxNamesInText = 8;

std::string joined(const std::vector<std::string> &names)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), maxNamesInText); ++i)
        text += (i == 0 ? "\"" : ", \"") + names[i] + '"';
    return names.size() > maxNamesInText ? text + " and other nodes" : text;
}

} // namespace

NodeReferences::NodeReferences(const Description &description)
    : m_description(description), m_nodes(description.size())
{
    for (NodeIndex node = 0; node < description.size(); ++node)
        collectReferences(node);
    findUsable();
}

void NodeReferences::collectReferences(NodeIndex node)
{
    const NodeDescription &description = m_description[node];
    addReferences(node, description.properties);
    for (const EntryDescription &entry : description.entries)
        addReferences(node, entry.properties);

    Node &result = m_nodes[node];
    result.problem = findProblem(m_description, node);
    const PropertyList &properties = description.properties;
    result.traits.usesImage = description.kind == NodeKind::Port
        && (properties.has(PropertyKind::ChunkId) || properties.has(PropertyKind::PChunkId)
            || properties.has(PropertyKind::EventId));
    result.traits.hasVariableLength = properties.has(PropertyKind::PLength);
    result.traits.canDivide = isFormula(description.kind) && ::canDivide(description);
}

void NodeReferences::addReferences(NodeIndex node, const PropertyList &properties)
{
    for (const NodeProperty &property : properties) {
        const ReferenceRole role = roleOf(property.kind);
        if (role == ReferenceRole::None)
            continue;
        if (const auto target = m_description.find(property.text))
            m_nodes[node].references.push_back({*target, role});
    }
}

/// Visits each node after all nodes on which its value depends. Nodes of a cycle, and nodes that depend on an
/// unusable one, are never visited.
void NodeReferences::findUsable()
{
    std::vector<std::vector<NodeIndex>> dependents(m_nodes.size());
    std::vector<std::size_t> missing(m_nodes.size(), 0); // Number of values that are not known to be usable.
    std::vector<NodeIndex> ready;
    for (NodeIndex node = 0; node < m_nodes.size(); ++node) {
        for (const Reference &reference : m_nodes[node].references) {
            if (reference.role != ReferenceRole::Value)
                continue;
            ++missing[node];
            dependents[reference.target].push_back(node);
        }
        if (missing[node] == 0)
            ready.push_back(node);
    }
    while (!ready.empty()) {
        const NodeIndex node = ready.back();
        ready.pop_back();
        resolve(node);
        if (!m_nodes[node].isUsable)
            continue;
        for (const NodeIndex dependent : dependents[node]) {
            if (--missing[dependent] == 0)
                ready.push_back(dependent);
        }
    }
}

/// Takes over what the node inherits from the nodes on which its value depends.
void NodeReferences::resolve(NodeIndex index)
{
    Node &node = m_nodes[index];
    for (const Reference &reference : node.references) {
        if (reference.role != ReferenceRole::Value)
            continue;
        const Node &target = m_nodes[reference.target];
        node.depth = std::max(node.depth, target.depth + 1);
        node.accesses = std::min(node.accesses + target.accesses, maxAccesses + 1);
        node.traits.usesImage |= target.traits.usesImage;
        node.traits.hasVariableLength |= target.traits.hasVariableLength;
        node.traits.canDivide |= target.traits.canDivide;
    }
    if (node.problem.empty() && (node.depth > maxValueDepth || node.accesses > maxAccesses))
        node.problem = '"' + m_description[index].name + "\" depends on too many other nodes";
    node.isUsable = node.problem.empty();
}

std::string NodeReferences::problem(NodeIndex node) const
{
    std::vector<std::string> names;
    std::unordered_set<NodeIndex> visited;
    while (m_nodes[node].problem.empty()) {
        if (!visited.insert(node).second) {
            const auto start = std::find(names.begin(), names.end(), m_description[node].name);
            return "the register description is wrong: the value depends on itself, by way of "
                + joined({start, names.end()});
        }
        names.push_back(m_description[node].name);
        const auto &references = m_nodes[node].references;
        const auto unusable
            = std::find_if(references.begin(), references.end(), [this](const Reference &reference) {
                  return reference.role == ReferenceRole::Value && !m_nodes[reference.target].isUsable;
              });
        if (unusable == references.end())
            return {};
        node = unusable->target;
    }
    return "the register description is wrong: " + m_nodes[node].problem;
}

std::vector<NodeIndex> NodeReferences::valueSources(NodeIndex node) const
{
    std::vector<NodeIndex> sources{node};
    std::unordered_set<NodeIndex> known{node};
    for (std::size_t i = 0; i < sources.size(); ++i) {
        for (const Reference &reference : of(sources[i])) {
            if (reference.role == ReferenceRole::Value && known.insert(reference.target).second)
                sources.push_back(reference.target);
        }
    }
    return sources;
}
