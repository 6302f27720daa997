#pragma once

#include "sdk/cvxcpp/Timing.h"

#include <map>
#include <optional>
#include <set>
#include <string>

/// The state of one producer's searches: how fresh the results are, whether the producer replies in time,
/// and which requests still have to be sent to its host.
class SearchState
{
public:
    /// Results that are younger than `reuseTime` are fresh: they need no new search.
    explicit SearchState(Milliseconds reuseTime) : m_reuseTime(reuseTime) { }

    bool isFresh(TimePoint now) const;
    bool isInterfaceFresh(const std::string &interfaceId, TimePoint now) const;

    /// Returns false after a missed deadline or a failure until a reply arrives in time. Callers do not
    /// wait for a producer that is not responsive.
    bool isResponsive() const { return m_isResponsive; }

    /// Returns the number of camera lists that have arrived. A change of this number shows a waiting caller
    /// that a list has arrived.
    unsigned listCount() const { return m_listCount; }

    // The requests stay pending until the host is idle.
    void requestList() { m_isListPending = true; }
    bool takeListRequest();
    void requestInterface(const std::string &interfaceId) { m_pendingInterfaces.insert(interfaceId); }
    void dropInterfaceRequest(const std::string &interfaceId) { m_pendingInterfaces.erase(interfaceId); }
    bool isInterfacePending(const std::string &interfaceId) const;

    /// Returns the ID of the interface to search next, or nothing. The request stays pending until the
    /// reply arrives.
    std::optional<std::string> nextInterfaceRequest() const;

    // These functions record events of the producer. The producer is not responsive after a late reply.
    void listReceived(TimePoint now, bool isInTime);
    void interfaceReceived(const std::string &interfaceId, TimePoint now, bool isInTime);
    void deadlineMissed() { m_isResponsive = false; }
    void producerLost();

    /// Records that a search of all producers has ended. If the producer is responsive, the age of its list
    /// is counted from now on. Otherwise, if another producer is slow, the list would be too old for a
    /// caller that searches the interfaces of its cameras afterwards.
    void searchEnded(TimePoint now);

private:
    bool isYoung(const std::optional<TimePoint> &time, TimePoint now) const;

    Milliseconds m_reuseTime;
    unsigned m_listCount = 0;
    // Time at which the list arrived or its search of all producers ended.
    std::optional<TimePoint> m_listedAt;
    // Times of the searches of single interfaces since the last list.
    std::map<std::string, TimePoint> m_interfaceListedAt;
    bool m_isResponsive = true;
    bool m_isListPending = false;
    std::set<std::string> m_pendingInterfaces;
};
