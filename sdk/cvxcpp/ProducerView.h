#pragma once

#include "sdk/cvxcpp/CameraList.h"
#include "sdk/cvxcpp/HostedProducer.h"

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

/// What the callers of a session see of one producer, and what they wish of it.
struct ProducerView
{
    using Time = HostedProducer::Time;
    using Duration = HostedProducer::Clock::duration;

    std::size_t directory = 0; ///< Of its producer, in the search order.
    CameraList::Pointer list = CameraList::empty(); ///< What the producer reports.
    CameraList::Pointer shown = CameraList::empty(); ///< Without what an earlier directory has.
    std::vector<std::shared_ptr<const ListedInterface>> records; ///< The list's interfaces.

    Time listedAt = Time::min();
    Time searchEndedAt = Time::min(); ///< The search of all producers that had this list.
    std::map<std::string, Time> interfaceListedAt; ///< Searches of one interface, later than listedAt.
    bool isAwaited = true; ///< False from a missed deadline or a loss to the next answer in time.

    CameraList::Pointer announced = CameraList::empty();
    bool isSettled = false; ///< Its first list is not announced when the program has asked for it.

    bool isListWanted = false;
    std::set<std::string> wantedInterfaces;

    /// The list, or that of one interface, is so new that there is no need to search again.
    bool isFresh(Time now, Duration reuseTime) const;
    bool isInterfaceFresh(const std::string &interfaceId, Time now, Duration reuseTime) const;

    // What happens to the producer.
    void listed(Time now);
    void interfaceListed(const std::string &interfaceId, Time now);
    void lost();
    void late();

    /// The search that brought this list is over: for those who go through it, it counts from here on.
    void searchEnded(Time now);

    /// The program gets the list; from the first time on, only what changes later is announced.
    const CameraList &handOut();

    /// Null when there is no such interface.
    std::shared_ptr<const ListedInterface> findRecord(const std::string &interfaceId) const;
};
