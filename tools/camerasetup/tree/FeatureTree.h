#pragma once

#include "CvxCPP/Node.h"

#include <QVector>

#include <vector>

/// The place of each feature in the tree of features. A feature is known by its index in the camera's list.
/// Selected features are below their innermost selector if it is in the same category. Whatever the list
/// contains, the tree is finite and contains every feature exactly once, except the root category, which is
/// the invisible root of the tree.
class FeatureTree
{
public:
    static constexpr int none = -1; ///< The parent of the features at the top.

    FeatureTree() = default;
    explicit FeatureTree(const QVector<CvxCPP::NodeInfo> &nodes);

    int root() const { return m_root; } ///< The root category, which has no row; `none` without one.
    int parent(int feature) const { return m_items[std::size_t(feature)].parent; }
    int row(int feature) const { return m_items[std::size_t(feature)].row; } ///< Among its siblings.

    /// Returns the features below a feature, or those at the top, in the camera's order.
    const std::vector<int> &children(int parent) const
    {
        return parent == none ? m_top : m_items[std::size_t(parent)].children;
    }

private:
    struct Item
    {
        int parent = none;
        int row = 0;
        std::vector<int> children;
    };

    std::vector<Item> m_items;
    std::vector<int> m_top;
    int m_root = none;
};
