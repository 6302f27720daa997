#include "sdk/features/FeatureDirectory.h"

#include <algorithm>
#include <map>
#include <utility>

using namespace CvxCPP;

namespace {

std::vector<SelectorSetting>::const_iterator findSelector(
    const std::vector<SelectorSetting> &selectors, const std::string &name)
{
    return std::find_if(selectors.begin(), selectors.end(),
        [&name](const SelectorSetting &selector) { return selector.name == name; });
}

} // namespace

FeatureDirectory::FeatureDirectory(std::vector<NodeInfo> nodes) : m_nodes(std::move(nodes))
{
    for (std::size_t index = 0; index < m_nodes.size(); ++index)
        m_index.emplace(m_nodes[index].name, index);
}

const NodeInfo *FeatureDirectory::find(const std::string &name) const
{
    const auto found = m_index.find(name);
    return found == m_index.end() ? nullptr : &m_nodes[found->second];
}

bool FeatureDirectory::hasValue(const std::string &name) const
{
    const NodeInfo *const node = find(name);
    return node && node->type != NodeType::Category && node->type != NodeType::Command;
}

bool FeatureDirectory::isSelector(const std::string &name) const
{
    const NodeInfo *const node = find(name);
    return node && !node->selected.empty();
}

std::vector<std::string> FeatureDirectory::selectorsOf(const std::string &name) const
{
    std::vector<std::string> selectors{name}; // So that a feature never selects itself.
    addSelectors(name, 0, selectors);
    selectors.erase(selectors.begin());
    return selectors;
}

void FeatureDirectory::addSelectors(
    const std::string &name, int depth, std::vector<std::string> &selectors) const
{
    constexpr int maxDepth = 8; // Real cameras need two; the limit bounds selectors that select each other.
    const NodeInfo *const node = find(name);
    if (!node || depth == maxDepth)
        return;
    for (const std::string &selector : node->selectors) {
        const auto isKnown
            = [&] { return std::find(selectors.begin(), selectors.end(), selector) != selectors.end(); };
        if (isKnown())
            continue;
        addSelectors(selector, depth + 1, selectors);
        if (!isKnown() && hasValue(selector))
            selectors.push_back(selector);
    }
}

std::vector<FeatureSetting> FeatureDirectory::resolve(const std::vector<FeatureSetting> &settings) const
{
    std::map<std::string, std::string> inForce;
    std::vector<FeatureSetting> resolved;
    for (const FeatureSetting &setting : settings) {
        if (isSelector(setting.name)) {
            inForce[setting.name] = setting.value;
            continue;
        }
        FeatureSetting copy = setting;
        copy.selectors.clear();
        for (const std::string &name : selectorsOf(setting.name)) {
            const auto given = findSelector(setting.selectors, name);
            const auto current = inForce.find(name);
            if (given != setting.selectors.end())
                copy.selectors.push_back(*given);
            else if (current != inForce.end())
                copy.selectors.push_back({name, current->second});
        }
        // Selectors that this camera does not know fail later, with their names.
        for (const SelectorSetting &given : setting.selectors) {
            if (findSelector(copy.selectors, given.name) == copy.selectors.end())
                copy.selectors.push_back(given);
        }
        resolved.push_back(std::move(copy));
    }
    return resolved;
}
