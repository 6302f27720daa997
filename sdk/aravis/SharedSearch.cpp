#include "sdk/aravis/SharedSearch.h"

#include <algorithm>
#include <utility>

SharedSearch::SharedSearch(Search search, Transport transport, std::chrono::milliseconds maxAge)
    : m_search(std::move(search)), m_transport(transport), m_maxAge(maxAge)
{ }

std::vector<FoundDevice> SharedSearch::devices()
{
    const std::lock_guard lock(m_mutex);
    if (m_hasSearched && Clock::now() - m_endedAt < m_maxAge)
        return m_devices;

    std::vector<FoundDevice> found = m_search();
    if (m_transport == Transport::Lossy)
        addMissed(found);
    m_devices = std::move(found);
    m_endedAt = Clock::now();
    m_hasSearched = true;
    return m_devices;
}

void SharedSearch::addMissed(std::vector<FoundDevice> &found) const
{
    for (const FoundDevice &device : m_devices) {
        const bool isFound = std::any_of(
            found.begin(), found.end(), [&](const FoundDevice &other) { return other.id == device.id; });
        if (isFound || device.isMissed)
            continue;
        found.push_back(device);
        found.back().isMissed = true;
    }
}
