#include "tools/camerasetup/values/OpeningValues.h"

#include "sdk/features/FeatureText.h"

#include <utility>

using namespace CvxCPP;

namespace {

/// Texts are compared by their characters: "1.0" and "1" are different names of a camera.
bool isSameSetting(NodeType type, const std::string &left, const std::string &right)
{
    const bool isNumber = type == NodeType::Integer || type == NodeType::Float || type == NodeType::Boolean;
    return isNumber ? isSameText(left, right) : left == right;
}

} // namespace

std::string selectorsKey(const std::vector<SelectorSetting> &selectors)
{
    std::string key;
    for (const SelectorSetting &selector : selectors)
        key += '\n' + selector.name + '=' + selector.value;
    return key;
}

void OpeningValues::clear()
{
    m_entries.clear();
    m_changedCounts.clear();
}

OpeningValues::Entry *OpeningValues::find(const std::string &name, const Selectors &selectors)
{
    const auto found = m_entries.find(name + selectorsKey(selectors));
    return found == m_entries.end() ? nullptr : &found->second;
}

const OpeningValues::Entry *OpeningValues::find(const std::string &name, const Selectors &selectors) const
{
    const auto found = m_entries.find(name + selectorsKey(selectors));
    return found == m_entries.end() ? nullptr : &found->second;
}

void OpeningValues::add(
    const std::string &name, const Selectors &selectors, std::optional<std::string> opening)
{
    Entry entry;
    entry.opening = std::move(opening);
    if (m_entries.emplace(name + selectorsKey(selectors), std::move(entry)).second)
        m_changedCounts.emplace(name, 0);
}

void OpeningValues::setOpening(const std::string &name, const Selectors &selectors, const std::string &value)
{
    add(name, selectors, value);
}

void OpeningValues::setLost(const std::string &name, const Selectors &selectors)
{
    add(name, selectors, std::nullopt);
}

std::optional<std::string> OpeningValues::opening(const std::string &name, const Selectors &selectors) const
{
    const Entry *const entry = find(name, selectors);
    return entry ? entry->opening : std::nullopt;
}

std::optional<std::string> OpeningValues::present(const std::string &name, const Selectors &selectors) const
{
    const Entry *const entry = find(name, selectors);
    return entry ? entry->present : std::nullopt;
}

bool OpeningValues::setPresent(const NodeInfo &node, const Selectors &selectors, const std::string &value)
{
    Entry *const entry = find(node.name, selectors);
    if (!entry)
        return false;
    entry->present = value;
    const bool isNowChanged = entry->opening && !isSameSetting(node.type, *entry->opening, value);
    if (isNowChanged == entry->isChanged)
        return false;
    const bool wasChanged = isChanged(node.name);
    entry->isChanged = isNowChanged;
    m_changedCounts[node.name] += isNowChanged ? 1 : -1;
    return isChanged(node.name) != wasChanged;
}

bool OpeningValues::isChanged(const std::string &name) const
{
    const auto found = m_changedCounts.find(name);
    return found != m_changedCounts.end() && found->second > 0;
}

bool OpeningValues::markListed(const std::string &name, const Selectors &selectors)
{
    Entry *const entry = find(name, selectors);
    return entry && !std::exchange(entry->isListed, true);
}
