#include "sdk/device/NodeDirectory.h"

#include <utility>

using namespace CvxCPP;

NodeDirectory::NodeDirectory(std::vector<NodeInfo> nodes) : m_nodes(std::move(nodes))
{
    for (std::size_t i = 0; i < m_nodes.size(); ++i)
        m_index.emplace(m_nodes[i].name, i);
}

std::vector<std::string> NodeDirectory::names() const
{
    std::vector<std::string> names;
    for (const NodeInfo &node : m_nodes)
        names.push_back(node.name);
    return names;
}

const NodeInfo *NodeDirectory::find(const std::string &name) const
{
    const auto found = m_index.find(name);
    return found == m_index.end() ? nullptr : &m_nodes[found->second];
}

std::vector<std::string> NodeDirectory::selectorsOf(const NodeInfo &node) const
{
    std::unordered_set<std::string_view> visited{node.name};
    std::vector<std::string> selectors;
    addSelectors(node, 0, visited, selectors);
    return selectors;
}

void NodeDirectory::addSelectors(const NodeInfo &node, int depth,
    std::unordered_set<std::string_view> &visited, std::vector<std::string> &selectors) const
{
    constexpr int maxDepth = 16; // Real cameras need two; the limit bounds the recursion.
    for (const std::string &name : node.selectors) {
        const NodeInfo *const selector = find(name);
        // A description may contain selectors that select each other.
        if (!selector || depth == maxDepth || !visited.insert(selector->name).second)
            continue;
        addSelectors(*selector, depth + 1, visited, selectors);
        selectors.push_back(name);
    }
}
