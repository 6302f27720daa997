#pragma once

#include "sdk/aravis/AravisDevices.h"

#include <chrono>
#include <functional>
#include <mutex>
#include <vector>

/// Shares one search for devices among all interfaces of a producer. A consumer updates the interfaces at the
/// same time or in quick succession, and each search finds the devices of all interfaces.
class SharedSearch
{
public:
    using Search = std::function<std::vector<FoundDevice>()>;

    enum class Transport
    {
        Reliable,
        Lossy ///< Replies can get lost, so a device is kept if one search does not find it.
    };

    static constexpr std::chrono::milliseconds defaultMaxAge{500}; ///< Much shorter than a poll interval.

    /// Creates a search whose result is shared until the result is as old as `maxAge`.
    SharedSearch(Search search, Transport transport, std::chrono::milliseconds maxAge = defaultMaxAge);

    /// Returns the result of the last search if the result is not too old. Otherwise, runs a new search and
    /// blocks until the search has ended. Any thread may call devices().
    std::vector<FoundDevice> devices();

private:
    using Clock = std::chrono::steady_clock;

    void addMissed(std::vector<FoundDevice> &found) const;

    const Search m_search;
    const Transport m_transport;
    const std::chrono::milliseconds m_maxAge;

    // Guards the members below. The mutex is locked during a search, because every caller waits for the
    // result.
    std::mutex m_mutex;
    bool m_hasSearched = false;
    Clock::time_point m_endedAt;
    std::vector<FoundDevice> m_devices;
};
