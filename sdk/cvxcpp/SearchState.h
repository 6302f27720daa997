#pragma once

#include "sdk/cvxcpp/Timing.h"

#include <map>
#include <optional>
#include <set>
#include <string>

/// What the callers of a session know and want of one producer's searches: how fresh the results are, whether
/// the producer replies in time, and which requests are still to be sent to its host.
class SearchState
{
public:
    /// Results that are younger than `reuseTime` are fresh: they need no new search.
    explicit SearchState(Milliseconds reuseTime) : m_reuseTime(reuseTime) { }

    bool isFresh(TimePoint now) const;
    bool isInterfaceFresh(const std::string &interfaceId, TimePoint now) const;

    /// Returns false from a missed deadline or a failure until the next reply in time. Callers do not wait
    /// for a producer that is not responsive.
    bool isResponsive() const { return m_isResponsive; }

    /// Returns the number of camera lists that have arrived; a waiting caller sees by it that one came.
    unsigned listCount() const { return m_listCount; }

    // Requests, which stay pending until the host is idle.
    void requestList() { m_isListPending = true; }
    bool takeListRequest();
    void requestInterface(const std::string &interfaceId) { m_pendingInterfaces.insert(interfaceId); }
    void dropInterfaceRequest(const std::string &interfaceId) { m_pendingInterfaces.erase(interfaceId); }
    bool isInterfacePending(const std::string &interfaceId) const;

    /// Returns the interface to search next; it stays pending until its reply arrives.
    std::optional<std::string> nextInterfaceRequest() const;

    // What happens to the producer. A reply that is not in time leaves it unresponsive.
    void listReceived(TimePoint now, bool isInTime);
    void interfaceReceived(const std::string &interfaceId, TimePoint now, bool isInTime);
    void deadlineMissed() { m_isResponsive = false; }
    void producerLost();

    /// Counts the age of a responsive producer's list from now on, when the search of all producers ends: a
    /// caller that goes through the cameras afterwards must not search again because of a slow neighbour.
    void searchEnded(TimePoint now);

private:
    bool isYoung(const std::optional<TimePoint> &time, TimePoint now) const;

    Milliseconds m_reuseTime;
    unsigned m_listCount = 0;
    std::optional<TimePoint> m_listedAt; // Or when the search that brought the list ended.
    std::map<std::string, TimePoint> m_interfaceListedAt; // Searches of one interface after that list.
    bool m_isResponsive = true;
    bool m_isListPending = false;
    std::set<std::string> m_pendingInterfaces;
};
