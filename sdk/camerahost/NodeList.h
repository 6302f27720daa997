#pragma once

#include "CvxCPP/Node.h"
#include "sdk/camerahost/NodeReferences.h"

#include <optional>
#include <vector>

/// The nodes that a program sees: those that are reachable from the category "Root".
class NodeList
{
public:
    NodeList(const Description &description, const NodeReferences &references);

    const std::vector<CvxCPP::NodeInfo> &infos() const { return m_infos; }
    const std::vector<NodeIndex> &indices() const { return m_indices; } ///< In the same order.
    bool contains(NodeIndex node) const { return m_isListed[node]; }

    /// Returns the first listed node that shows the value of this node: itself, or a feature behind which
    /// this node is. Nothing if there is none.
    std::optional<NodeIndex> featureOf(NodeIndex node) const;

private:
    void collect();
    void addSelectors();
    void findFeatures();
    CvxCPP::NodeInfo makeInfo(NodeIndex node, const std::string &category) const;
    std::string inherited(NodeIndex node, PropertyKind kind) const;
    std::vector<NodeIndex> valueChain(NodeIndex node) const;

    const Description &m_description;
    const NodeReferences &m_references;
    std::vector<CvxCPP::NodeInfo> m_infos;
    std::vector<NodeIndex> m_indices;
    std::vector<bool> m_isListed;
    std::vector<std::optional<NodeIndex>> m_features; // The feature of every node; see featureOf().
};

/// Returns the type of the values of a node, or nothing for a port.
std::optional<CvxCPP::NodeType> nodeType(NodeKind kind);
