#pragma once

#include "sdk/camerahost/NodeList.h"
#include "sdk/camerahost/NodeReferences.h"

#include <string>
#include <vector>

/// Determines what may change when a node is written.
class NodeDependents
{
public:
    /// All must exist as long as this object.
    NodeDependents(const Description &description, const NodeReferences &references, const NodeList &list);

    /// Returns the listed nodes whose value, limits, availability or lock may change, in the order of the
    /// list, without the node itself. A command of unknown effect may change all nodes.
    std::vector<std::string> of(NodeIndex node) const;

private:
    void addValueChain(NodeIndex node, std::vector<NodeIndex> &reached, std::vector<bool> &isReached) const;

    const Description &m_description;
    const NodeReferences &m_references;
    const NodeList &m_list;
    std::vector<std::vector<NodeIndex>> m_referrers; // For each node, the nodes that evaluate it.
};
