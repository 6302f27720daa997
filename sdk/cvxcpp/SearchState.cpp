#include "sdk/cvxcpp/SearchState.h"

#include <algorithm>
#include <utility>

namespace {

// Some producers use much processor time while they search. After the end of a background search, the next
// one starts no sooner than minPauseFactor times the processor time of the last one, and so late that
// searches use at most a twentieth of a processor.
constexpr int minPauseFactor = 4;
constexpr int maxShare = 20;
constexpr SteadyClock::duration maxPause = std::chrono::seconds(30);

// A background search that is due may have to wait for the end of a short one.
constexpr Milliseconds maxSearchDelay{500};

constexpr Milliseconds minCollectionDistance{50}; // Time from the last list to the next collection.

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
    const SteadyClock::duration poll = m_intervals.poll;
    const auto age = std::max(poll, pause()) + m_searchTime + maxSearchDelay;
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
    const auto request = dueListRequest(now);
    if (!request)
        return std::nullopt;
    if (request == Request::Background)
        m_isBackgroundSearchPending = false;
    m_isShortSearchPending = false;
    m_isCollectionPending = false;
    m_lastRequest = *request;
    return request;
}

std::optional<SearchState::Request> SearchState::dueListRequest(TimePoint now) const
{
    const bool isBackgroundDue = now >= backgroundSearchTime();
    // A caller gets a short search first, but callers that search all the time do not keep the background
    // searches from running.
    const bool isShortFirst = !isBackgroundDue || m_lastRequest != Request::Short;
    if (m_isShortSearchPending && isShortFirst)
        return Request::Short;
    if (isBackgroundDue)
        return Request::Background;
    if (now >= collectionTime())
        return Request::Collection;
    return std::nullopt;
}

SteadyClock::duration SearchState::pause() const
{
    const SteadyClock::duration cost = m_processorTime;
    return std::min(std::max(minPauseFactor * cost, maxShare * cost - m_searchTime), maxPause);
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
