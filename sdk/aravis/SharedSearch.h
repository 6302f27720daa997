#pragma once

#include "sdk/aravis/AravisDevices.h"

#include <chrono>
#include <functional>
#include <mutex>
#include <vector>

/// Shares one search for devices among all interfaces of a producer. A consumer updates the interfaces at the
/// same time or one right after another, and each search covers them all.
class SharedSearch
{
public:
    using Search = std::function<std::vector<FoundDevice>()>;

    enum class Transport
    {
        Reliable,
        Lossy ///< Replies can get lost, so a device that one search misses is still returned.
    };

    static constexpr std::chrono::milliseconds defaultMaxAge{500}; ///< Far less than a poll interval.

    /// A result is shared until it is as old as maxAge.
    SharedSearch(Search search, Transport transport, std::chrono::milliseconds maxAge = defaultMaxAge);

    /// Returns the devices of a new search, or of the last one if that has just ended. Blocks until the
    /// search has ended. Any thread may call it.
    std::vector<FoundDevice> devices();

private:
    using Clock = std::chrono::steady_clock;

    void addMissed(std::vector<FoundDevice> &found) const;

    const Search m_search;
    const Transport m_transport;
    const std::chrono::milliseconds m_maxAge;

    std::mutex
        m_mutex; // Guards what follows. Held during a search, because every caller waits for its result.
    bool m_hasSearched = false;
    Clock::time_point m_endedAt;
    std::vector<FoundDevice> m_devices;
};
