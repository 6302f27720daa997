#include "sdk/cvxcpp/SearchState.h"

#include <algorithm>
#include <utility>

namespace {

// A background search starts no sooner than this many times the processor time of the last search after its
// end, because some producers use a whole processor while they search.
constexpr int processorTimeFactor = 4;

constexpr Milliseconds minCollectionDistance{50}; // From the last list to the next collection.

bool isWithin(const std::optional<TimePoint> &time, SteadyClock::duration age, TimePoint now)
{
    return time && now - *time < age;
}

} // namespace

bool SearchState::isFresh(TimePoint now) const
{
    return isWithin(m_listedAt, m_intervals.listReuse, now);
}

bool SearchState::isInterfaceFresh(const std::string &interfaceId, TimePoint now) const
{
    const Milliseconds age = m_intervals.interfaceReuse;
    const auto single = m_interfaceListedAt.find(interfaceId);
    return isWithin(m_listedAt, age, now) || isWithin(m_returnedAt, age, now)
        || (single != m_interfaceListedAt.end() && isWithin(single->second, age, now));
}

bool SearchState::isCurrent(TimePoint now) const
{
    if (m_lastReply.isSelfUpdating)
        return true;
    const auto pause = std::max(m_intervals.poll, processorTimeFactor * m_lastReply.processorTime);
    return isWithin(m_listedAt, pause + m_searchTime, now);
}

bool SearchState::isInterfacePending(const std::string &interfaceId) const
{
    return m_pendingInterfaces.count(interfaceId) > 0;
}

std::optional<SearchState::Request> SearchState::takeListRequest(TimePoint now)
{
    std::optional<Request> request;
    if (now >= backgroundSearchTime())
        request = Request::Background;
    else if (m_isShortSearchPending)
        request = Request::Short;
    else if (now >= collectionTime())
        request = Request::Collection;
    if (request == Request::Background)
        m_isBackgroundSearchPending = false;
    if (request) {
        m_isShortSearchPending = false;
        m_isCollectionPending = false;
    }
    return request;
}

TimePoint SearchState::nextListRequest() const
{
    return m_isShortSearchPending ? TimePoint::min() : std::min(backgroundSearchTime(), collectionTime());
}

TimePoint SearchState::collectionTime() const
{
    if (!m_isCollectionPending)
        return TimePoint::max();
    return m_listedAt ? *m_listedAt + minCollectionDistance : TimePoint::min();
}

TimePoint SearchState::backgroundSearchTime() const
{
    if (!m_isBackgroundSearchPending)
        return TimePoint::max();
    return m_listedAt ? *m_listedAt + processorTimeFactor * m_lastReply.processorTime : TimePoint::min();
}

std::optional<std::string> SearchState::nextInterfaceRequest() const
{
    if (m_pendingInterfaces.empty())
        return std::nullopt;
    return *m_pendingInterfaces.begin();
}

void SearchState::listReceived(TimePoint now, const ListReply &reply)
{
    ++m_listCount;
    m_isResponsive = reply.isInTime;
    m_lastReply = reply;
    if (!m_listedAt && m_intervals.isFirstSearchShort) // Cameras may still be missing.
        requestBackgroundSearch();
    m_searchTime = now - std::exchange(m_sentAt, std::nullopt).value_or(now);
    m_listedAt = now;
    m_interfaceListedAt.clear();
    // The list is also the result of every request that a caller made before the list arrived.
    m_isShortSearchPending = false;
    m_pendingInterfaces.clear();
}

void SearchState::interfaceReceived(const std::string &interfaceId, TimePoint now, bool isInTime)
{
    m_sentAt.reset();
    m_interfaceListedAt[interfaceId] = now;
    m_pendingInterfaces.erase(interfaceId);
    m_isResponsive = isInTime;
}

void SearchState::producerLost()
{
    const unsigned listCount = m_listCount;
    *this = SearchState(m_intervals);
    m_listCount = listCount;
    m_isResponsive = false;
}
