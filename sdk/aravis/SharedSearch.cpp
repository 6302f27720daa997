#include "sdk/aravis/SharedSearch.h"

#include <utility>

SharedSearch::SharedSearch(Search search, std::chrono::milliseconds maxAge)
    : m_search(std::move(search)), m_maxAge(maxAge)
{ }

std::vector<FoundDevice> SharedSearch::devices()
{
    const std::lock_guard lock(m_mutex);
    if (m_hasSearched && Clock::now() - m_endedAt < m_maxAge)
        return m_devices;

    m_devices = m_search();
    m_endedAt = Clock::now();
    m_hasSearched = true;
    return m_devices;
}
