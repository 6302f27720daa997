#pragma once

#include "sdk/process/Timing.h"

#include <map>
#include <optional>
#include <set>
#include <string>

/// The state of one producer's searches: how recent the results are, whether the producer replies in time,
/// and which requests still have to be sent to its host.
class SearchState
{
public:
    struct Intervals
    {
        Milliseconds poll; ///< Time between the starts of two background searches.
        Milliseconds listReuse; ///< No list is requested within this time after the last one arrived.
        Milliseconds interfaceReuse; ///< The same for the update of one interface.
        bool isFirstSearchShort = true; ///< The first search has less time than a background search.
    };

    enum class Request
    {
        Background, ///< A search with the time that the slowest cameras need.
        Short, ///< A search for a caller, and the first search of a host.
        Collection ///< The list of a self-updating producer, without a search.
    };

    struct ListReply
    {
        bool isInTime = true;
        bool isSelfUpdating = false; ///< The producer reports its changes and needs no background searches.
        Milliseconds processorTime{0}; ///< Processor time that the search has cost.
    };

    explicit SearchState(const Intervals &intervals) : m_intervals(intervals) { }

    /// Returns true if the list is so new that a caller needs no further search.
    bool isFresh(TimePoint now) const;
    bool isInterfaceFresh(const std::string &interfaceId, TimePoint now) const;

    /// Returns true if the list is not older than a poll interval and the search that follows it. Callers
    /// get such a list without waiting for a search to end. Short searches do not make a list current,
    /// because they may miss cameras.
    bool isCurrent(TimePoint now) const;

    /// Returns false after a missed deadline or a failure until a reply arrives in time. Callers do not
    /// wait for a producer that is not responsive.
    bool isResponsive() const { return m_isResponsive; }

    /// Returns true while a search for all cameras is running.
    bool isSearching() const;

    /// Returns the number of camera lists that have arrived. A change of this number shows a waiting caller
    /// that a list has arrived.
    unsigned listCount() const { return m_listCount; }

    // The requests stay pending until the host is idle.
    void requestShortSearch() { m_isShortSearchPending = true; }
    void requestCollection() { m_isCollectionPending = true; }
    /// Requests a background search, or a collection from a self-updating producer, which searches by itself.
    /// Has no effect before the first list, which is followed by a background search anyway.
    void requestPoll();
    void requestInterface(const std::string &interfaceId) { m_pendingInterfaces.insert(interfaceId); }
    void dropInterfaceRequest(const std::string &interfaceId) { m_pendingInterfaces.erase(interfaceId); }
    bool isInterfacePending(const std::string &interfaceId) const;

    /// Returns the list request to send now, if there is one. Its reply answers the lesser requests too:
    /// every search also collects, and a background search finds what a short one finds.
    std::optional<Request> takeListRequest(TimePoint now);

    /// Returns the time at which a pending list request may be sent, or TimePoint::max() if none is pending.
    /// After a search that has cost much processor time, a background search waits longer. A producer that
    /// reports changes without end is asked at a limited rate.
    TimePoint nextListRequest() const;

    /// Returns the ID of the interface to search next, or nothing. The request stays pending until the
    /// reply arrives.
    std::optional<std::string> nextInterfaceRequest() const;

    // These functions record events of the producer. The producer is not responsive after a late reply.
    void listRequestSent(Request request, TimePoint now) { m_running = Running{request, now}; }
    void listReceived(TimePoint now, const ListReply &reply);
    void interfaceReceived(const std::string &interfaceId, TimePoint now, bool isInTime);
    void deadlineMissed() { m_isResponsive = false; }
    void producerLost();

    /// Records that a caller has got the list. The caller may then update the interfaces of its cameras one
    /// after another without waiting for a search of each.
    void listReturned(TimePoint now) { m_returnedAt = now; }

private:
    struct Running
    {
        Request request;
        TimePoint sentAt;
    };

    std::optional<Request> dueListRequest(TimePoint now) const;
    SteadyClock::duration pause() const;
    TimePoint backgroundSearchTime() const;
    TimePoint collectionTime() const;

    Intervals m_intervals;
    unsigned m_listCount = 0;
    std::optional<Running> m_running; // The outstanding request for a list.
    std::optional<TimePoint> m_listedAt; // Time at which the last list arrived.
    std::optional<TimePoint> m_returnedAt; // Time at which a caller got the last list.
    // Times of the searches of single interfaces since the last list.
    std::map<std::string, TimePoint> m_interfaceListedAt;
    // The end, the duration and the processor time of the last search that was not short. Until the end of
    // the first one, those of the first list.
    TimePoint m_completedAt{};
    SteadyClock::duration m_searchTime{};
    Milliseconds m_processorTime{0};
    bool m_isSelfUpdating = false;
    Request m_lastRequest = Request::Background;
    bool m_isResponsive = true;
    bool m_isShortSearchPending = true; // Every new host is asked for its cameras.
    bool m_isBackgroundSearchPending = false;
    bool m_isCollectionPending = false;
    std::set<std::string> m_pendingInterfaces;
};
