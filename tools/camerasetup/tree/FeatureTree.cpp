#include "tools/camerasetup/tree/FeatureTree.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

using CvxCPP::NodeInfo;
using CvxCPP::NodeType;

namespace {

constexpr int none = FeatureTree::none;
constexpr int maxDepth = 32; ///< What is nested deeper is shown at this depth.

/// Finds the parents of all features of a list.
class ParentFinder
{
public:
    explicit ParentFinder(const QVector<NodeInfo> &nodes) : m_nodes(nodes), m_depths(size(), unknown)
    {
        m_indexes.reserve(size());
        for (int i = 0; i < nodes.size(); ++i)
            m_indexes.emplace(nodes[i].name, i); // The first feature of a name counts.
        m_root = findRoot();
        m_parents.reserve(size());
        for (int i = 0; i < nodes.size(); ++i)
            m_parents.push_back(wantedParent(i));
        for (int i = 0; i < nodes.size(); ++i)
            settle(i);
    }

    int root() const { return m_root; }
    int parent(int index) const { return m_parents[std::size_t(index)]; }

private:
    static constexpr int unknown = -1;
    static constexpr int pending = -2;

    std::size_t size() const { return std::size_t(m_nodes.size()); }

    int find(const std::string &name) const
    {
        const auto found = m_indexes.find(name);
        return found == m_indexes.end() ? none : found->second;
    }

    /// Returns the category that the description of every camera begins with.
    int findRoot() const
    {
        const int root = find("Root");
        const bool isRoot
            = root != none && m_nodes[root].type == NodeType::Category && m_nodes[root].category.empty();
        return isRoot ? root : none;
    }

    int categoryOf(int index) const
    {
        const int category = find(m_nodes[index].category);
        const bool isUsable
            = category != none && category != m_root && m_nodes[category].type == NodeType::Category;
        return isUsable ? category : none;
    }

    /// Returns the selector of the same category that has the most other ones of these as its own selectors.
    int selectorOf(int index) const
    {
        const std::vector<std::string> &names = m_nodes[index].selectors;
        int best = none;
        std::ptrdiff_t bestCount = -1;
        for (const std::string &name : names) {
            const int selector = find(name);
            if (selector == none || selector == index || m_nodes[selector].type == NodeType::Category
                || m_nodes[selector].category != m_nodes[index].category)
                continue;
            const std::vector<std::string> &outer = m_nodes[selector].selectors;
            const auto count = std::count_if(names.begin(), names.end(), [&outer](const std::string &other) {
                return std::find(outer.begin(), outer.end(), other) != outer.end();
            });
            if (count > bestCount) {
                best = selector;
                bestCount = count;
            }
        }
        return best;
    }

    int wantedParent(int index) const
    {
        const int selector = m_nodes[index].type == NodeType::Category ? none : selectorOf(index);
        return selector != none ? selector : categoryOf(index);
    }

    /// Breaks the cycle that the parents of the feature may form, and limits its depth.
    void settle(int index)
    {
        std::vector<int> path;
        int next = index;
        for (; next != none && depth(next) == unknown; next = parent(next)) {
            depth(next) = pending;
            path.push_back(next);
        }
        int above = next == none ? 0 : depth(next);
        if (above
            == pending) { // A cycle of features gets out into its category, one of categories to the top.
            const int category = m_nodes[next].type == NodeType::Category ? none : categoryOf(next);
            m_parents[std::size_t(next)] = category;
            // The cycle begins anew at the feature that has left it.
            for (const int feature : path)
                depth(feature) = unknown;
            settle(index);
            return;
        }
        for (auto feature = path.rbegin(); feature != path.rend(); ++feature) {
            if (above >= maxDepth)
                m_parents[std::size_t(*feature)] = parentAtLimit(*feature);
            above = std::min(above + 1, maxDepth);
            depth(*feature) = above;
        }
    }

    /// Returns the parent of a feature's parent, which is as deep as a parent can be.
    int parentAtLimit(int index) const { return parent(parent(index)); }

    int &depth(int index) { return m_depths[std::size_t(index)]; }

    const QVector<NodeInfo> &m_nodes;
    std::unordered_map<std::string_view, int> m_indexes;
    std::vector<int> m_parents;
    std::vector<int> m_depths; // 1 for the features at the top.
    int m_root = none;
};

} // namespace

FeatureTree::FeatureTree(const QVector<NodeInfo> &nodes) : m_items(std::size_t(nodes.size()))
{
    const ParentFinder finder(nodes);
    m_root = finder.root();
    for (int feature = 0; feature < nodes.size(); ++feature) {
        if (feature == m_root)
            continue;
        Item &item = m_items[std::size_t(feature)];
        item.parent = finder.parent(feature);
        std::vector<int> &siblings = item.parent == none ? m_top : m_items[std::size_t(item.parent)].children;
        item.row = int(siblings.size());
        siblings.push_back(feature);
    }
}
