#pragma once

#include "sdk/camerahost/DescriptionElements.h"
#include "sdk/camerahost/NodeDescription.h"

#include <optional>
#include <string>
#include <vector>

/// The references between the nodes of a description. Finds, in one pass over all of them, the nodes that
/// have no value because of errors in the description: those whose value depends on itself, on a missing
/// node, or on so many nodes that an access would take forever. The engine must not get to see them.
class NodeReferences
{
public:
    struct Reference
    {
        NodeIndex target;
        ReferenceRole role;
    };

    /// `description` must exist as long as this object.
    explicit NodeReferences(const Description &description);

    /// Returns the references of a node to nodes that exist, including those of its entries.
    const std::vector<Reference> &of(NodeIndex node) const { return m_nodes[node].references; }

    bool isUsable(NodeIndex node) const { return m_nodes[node].isUsable; }

    /// Returns why a node is not usable, as a clause for people.
    std::string problem(NodeIndex node) const;

    // These functions also consider all nodes on which the value depends.

    bool usesImage(NodeIndex node) const { return m_nodes[node].traits.usesImage; }
    bool hasVariableLength(NodeIndex node) const { return m_nodes[node].traits.hasVariableLength; }
    bool canDivide(NodeIndex node) const { return m_nodes[node].traits.canDivide; }

    /// Returns the node and all nodes on which its value depends.
    std::vector<NodeIndex> valueSources(NodeIndex node) const;

private:
    struct Traits
    {
        bool usesImage = false; // The value depends on data of an image or of an event.
        bool hasVariableLength = false;
        bool canDivide = false;
    };
    struct Node
    {
        std::vector<Reference> references;
        std::string problem; // Problem of this node itself.
        Traits traits;
        std::uint32_t depth = 0; // Length of the longest chain of values that starts here.
        std::uint32_t accesses = 1; // Accesses that reading the value takes.
        bool isUsable = false;
    };

    void collectReferences(NodeIndex node);
    void addReferences(NodeIndex node, const PropertyList &properties);
    void findUsable();
    void resolve(NodeIndex node);

    const Description &m_description;
    std::vector<Node> m_nodes;
};
