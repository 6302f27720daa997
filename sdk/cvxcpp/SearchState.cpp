#include "sdk/cvxcpp/SearchState.h"

#include <algorithm>
#include <utility>

namespace {

// A background search starts no sooner than this many times the processor time of the last search after its
// end, because some producers use a whole processor while they search.
constexpr int processorTimeFactor = 4;

constexpr Milliseconds maxPause{30000}; // For a producer that reports an absurd processor time.

// A background search that is due may have to wait for the end of a short one.
constexpr Milliseconds maxSearchDelay{500};

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
    const bool isSearchComplete = m_running && m_running->request != Request::Short;
    const TimePoint reference = isSearchComplete ? m_running->sentAt : now;
    const auto age = std::max(m_intervals.poll, pause()) + m_searchTime + maxSearchDelay;
    return m_listedAt && reference - m_completedAt < age;
}

bool SearchState::isSearching() const
{
    return m_running && m_running->request != Request::Collection;
}

bool SearchState::isInterfacePending(const std::string &interfaceId) const
{
    return m_pendingInterfaces.count(interfaceId) > 0;
}

void SearchState::requestPoll()
{
    if (!m_listedAt)
        return;
    (m_isSelfUpdating ? m_isCollectionPending : m_isBackgroundSearchPending) = true;
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

Milliseconds SearchState::pause() const
{
    return std::min(processorTimeFactor * m_processorTime, maxPause);
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
    return m_isBackgroundSearchPending ? m_completedAt + pause() : TimePoint::max();
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
    m_isSelfUpdating = reply.isSelfUpdating;
    m_isResponsive = reply.isInTime;
    const auto running = std::exchange(m_running, std::nullopt);
    const bool isFirst = !m_listedAt;
    m_listedAt = now;
    if (isFirst && m_intervals.isFirstSearchShort && !m_isSelfUpdating)
        m_isBackgroundSearchPending = true; // Cameras may still be missing.
    const bool isShort = running && running->request == Request::Short && !m_isSelfUpdating;
    if (isFirst || !isShort) {
        m_completedAt = now;
        m_searchTime = running ? now - running->sentAt : SteadyClock::duration();
        m_processorTime = reply.processorTime;
    }
    m_interfaceListedAt.clear();
    // The list is also the result of every request that a caller made before the list arrived.
    m_isShortSearchPending = false;
    m_pendingInterfaces.clear();
}

void SearchState::interfaceReceived(const std::string &interfaceId, TimePoint now, bool isInTime)
{
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
