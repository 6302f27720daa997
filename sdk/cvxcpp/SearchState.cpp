#include "sdk/cvxcpp/SearchState.h"

#include <utility>

bool SearchState::isFresh(TimePoint now) const
{
    return isYoung(m_listedAt, now);
}

bool SearchState::isInterfaceFresh(const std::string &interfaceId, TimePoint now) const
{
    const auto single = m_interfaceListedAt.find(interfaceId);
    return isFresh(now) || (single != m_interfaceListedAt.end() && isYoung(single->second, now));
}

bool SearchState::isYoung(const std::optional<TimePoint> &time, TimePoint now) const
{
    return time && now - *time < m_reuseTime;
}

bool SearchState::takeListRequest()
{
    return std::exchange(m_isListPending, false);
}

bool SearchState::isInterfacePending(const std::string &interfaceId) const
{
    return m_pendingInterfaces.count(interfaceId) > 0;
}

std::optional<std::string> SearchState::nextInterfaceRequest() const
{
    if (m_pendingInterfaces.empty())
        return std::nullopt;
    return *m_pendingInterfaces.begin();
}

void SearchState::listReceived(TimePoint now, bool isInTime)
{
    ++m_listCount;
    m_listedAt = now;
    m_interfaceListedAt.clear();
    // The list is also the result of every request that was made before the list arrived.
    m_isListPending = false;
    m_pendingInterfaces.clear();
    m_isResponsive = isInTime;
}

void SearchState::interfaceReceived(const std::string &interfaceId, TimePoint now, bool isInTime)
{
    m_interfaceListedAt[interfaceId] = now;
    m_pendingInterfaces.erase(interfaceId);
    m_isResponsive = isInTime;
}

void SearchState::producerLost()
{
    m_listedAt.reset();
    m_interfaceListedAt.clear();
    m_pendingInterfaces.clear();
    m_isResponsive = false;
}

void SearchState::searchEnded(TimePoint now)
{
    if (m_isResponsive && m_listedAt)
        m_listedAt = now;
}
