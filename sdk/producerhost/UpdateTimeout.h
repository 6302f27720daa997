#pragma once

#include <chrono>
#include <cstdint>

/// Timeout for the update calls of one interface, or of the interface list. A call that runs out of time
/// gets more time in the next search; repeating it at once would delay the whole reply.
class UpdateTimeout
{
public:
    using Clock = std::chrono::steady_clock;

    /// Returns the deadline for all update calls of a search that starts now. Calls that start after the
    /// deadline still get the shortest timeout.
    static Clock::time_point deadline();

    /// Returns the timeout in milliseconds for a call that starts now.
    std::uint64_t until(Clock::time_point deadline) const;

    /// Doubles the timeout. Returns false if it was the longest already; it then becomes the shortest again,
    /// so that an interface that never answers does not delay every search.
    bool grow();

private:
    std::uint64_t m_milliseconds = minTimeout;

    static constexpr std::uint64_t minTimeout = 500; // Some producers return at once if it is infinite.
    static constexpr std::uint64_t maxTimeout = 4000; // Twice this is less than the library waits for a host.
};
