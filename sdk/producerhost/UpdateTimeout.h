#pragma once

#include <chrono>
#include <cstdint>

/// Timeout for the calls that update one device list or the interface list. A call that times out gets more
/// time in the next search. Repeating the call at once would delay the whole reply.
class UpdateTimeout
{
public:
    using Clock = std::chrono::steady_clock;

    /// Returns the deadline for all update calls of a search that starts now. Calls that start after the
    /// deadline still get the shortest timeout.
    static Clock::time_point deadline();

    /// Returns the timeout in milliseconds for a call that starts now and should end before the deadline.
    std::uint64_t until(Clock::time_point deadline) const;

    /// Doubles the timeout and returns true. If the timeout was already the longest, makes it the shortest
    /// again and returns false, so that an interface that never answers does not delay every search.
    bool grow();

private:
    std::uint64_t m_milliseconds = minTimeout;

    // Milliseconds. Some producers return at once if the timeout is infinite.
    static constexpr std::uint64_t minTimeout = 500;
    // Milliseconds. Twice this value is less than the reply timeout of the library.
    static constexpr std::uint64_t maxTimeout = 4000;
};
