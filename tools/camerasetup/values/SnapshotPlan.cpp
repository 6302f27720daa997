#include "tools/camerasetup/values/SnapshotPlan.h"

#include <algorithm>
#include <utility>

void SnapshotPlan::clear()
{
    m_parts.clear();
    m_waiting.clear();
}

void SnapshotPlan::add(const FeatureDirectory &directory, const std::string &name)
{
    if (!m_waiting.insert(name).second) {
        for (SnapshotPart &part : m_parts) {
            if (std::find(part.names.begin(), part.names.end(), name) != part.names.end())
                part.finished.clear();
        }
        return;
    }
    auto selectors = directory.selectorsOf(name);
    // A part of which something is finished must not grow.
    const auto part = std::find_if(m_parts.begin(), m_parts.end(),
        [&](const SnapshotPart &other) { return other.selectors == selectors && other.finished.empty(); });
    if (part != m_parts.end())
        part->names.push_back(name);
    else if (selectors.empty())
        m_parts.push_front({{}, {name}, {}});
    else
        m_parts.push_back({std::move(selectors), {name}, {}});
}

void SnapshotPlan::remove(const std::string &name)
{
    if (m_waiting.erase(name) == 0)
        return;
    for (SnapshotPart &part : m_parts)
        part.names.erase(std::remove(part.names.begin(), part.names.end(), name), part.names.end());
    const auto isDone = [](const SnapshotPart &part) { return part.names.empty(); };
    m_parts.erase(std::remove_if(m_parts.begin(), m_parts.end(), isDone), m_parts.end());
}

SnapshotPart SnapshotPlan::take(std::size_t count)
{
    SnapshotPart &first = m_parts.front();
    SnapshotPart part{first.selectors, {}, {}};
    if (!first.finished.empty() || first.names.size() <= count) {
        part = std::move(first);
        m_parts.pop_front();
    } else {
        const auto end = first.names.begin() + static_cast<std::ptrdiff_t>(count);
        part.names.assign(first.names.begin(), end);
        first.names.erase(first.names.begin(), end);
    }
    for (const std::string &name : part.names)
        m_waiting.erase(name);
    return part;
}

bool SnapshotPlan::putBack(SnapshotPart &part)
{
    if (part.finished.size() >= maxCombinations)
        return false;
    for (const std::string &name : part.names) {
        if (contains(name))
            part.finished.clear(); // Something has changed meanwhile.
        remove(name);
    }
    m_waiting.insert(part.names.begin(), part.names.end());
    m_parts.push_front(std::move(part));
    return true;
}
