#pragma once

#include "CvxCPP/Node.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// The nodes of an opened camera, with an index of their names.
class NodeDirectory
{
public:
    explicit NodeDirectory(std::vector<CvxCPP::NodeInfo> nodes);
    NodeDirectory(const NodeDirectory &) = delete;
    NodeDirectory &operator=(const NodeDirectory &) = delete;

    const std::vector<CvxCPP::NodeInfo> &nodes() const { return m_nodes; }
    std::vector<std::string> names() const;

    /// Returns null if there is no node of this name.
    const CvxCPP::NodeInfo *find(const std::string &name) const;

    /// Returns all selectors on which the value of the node depends, also the selectors of its selectors.
    /// Every selector comes after its own selectors.
    std::vector<std::string> selectorsOf(const CvxCPP::NodeInfo &node) const;

private:
    void addSelectors(const CvxCPP::NodeInfo &node, int depth, std::unordered_set<std::string_view> &visited,
        std::vector<std::string> &selectors) const;

    const std::vector<CvxCPP::NodeInfo> m_nodes;
    std::unordered_map<std::string_view, std::size_t> m_index; // The names are those in m_nodes.
};
