#pragma once

#include <chrono>
#include <cstdint>

/// Timeout for the calls that update one device list or the interface list. Each request brings its own
/// timeout. In a background search, a call that times out gets more time in the next background search;
/// repeating the call at once would delay the whole reply. A short search never changes this time, because
/// its timeout is too short for many healthy producers.
class UpdateTimeout
{
public:
    using Clock = std::chrono::steady_clock;

    /// Returns the deadline for all update calls of a search that starts now. Calls that start after the
    /// deadline still get the shortest timeout.
    static Clock::time_point deadline();

    /// Returns true if `requested`, the timeout of a request in milliseconds, is that of a short search or
    /// collects only what the producer knows. A call that times out in such a search has not failed.
    static bool isShort(std::uint32_t requested);

    /// Returns the timeout in milliseconds for a call that starts now and should end before the deadline.
    std::uint64_t until(std::uint32_t requested, Clock::time_point deadline) const;

    /// Returns true if a call that timed out has not failed, because the next background search gives it more
    /// time: doubles the timeout unless the search is short. If the timeout was already the longest, resets
    /// it and returns false, so that an interface that never answers does not delay every search.
    bool grow(std::uint32_t requested);

private:
    std::uint64_t limit(std::uint32_t requested) const;

    std::uint64_t m_grown = 0; // Milliseconds; 0 if a background search gets the timeout of its request.
};
