#pragma once

#include "sdk/aravis/AravisDevices.h"

#include <chrono>
#include <functional>
#include <mutex>
#include <vector>

/// Shares one search for devices among several calls, because a consumer may update the list in quick
/// succession.
class SharedSearch
{
public:
    using Search = std::function<std::vector<FoundDevice>()>;

    static constexpr std::chrono::milliseconds defaultMaxAge{500}; ///< Much shorter than a poll interval.

    /// Creates a search whose result is shared until the result is as old as `maxAge`.
    explicit SharedSearch(Search search, std::chrono::milliseconds maxAge = defaultMaxAge);

    /// Returns the result of the last search if the result is not too old. Otherwise, runs a new search and
    /// blocks until the search has ended. Any thread may call devices().
    std::vector<FoundDevice> devices();

private:
    using Clock = std::chrono::steady_clock;

    const Search m_search;
    const std::chrono::milliseconds m_maxAge;

    // Guards the members below. The mutex is locked during a search, because every caller waits for the
    // result.
    std::mutex m_mutex;
    bool m_hasSearched = false;
    Clock::time_point m_endedAt;
    std::vector<FoundDevice> m_devices;
};
