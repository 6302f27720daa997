#pragma once

#include <chrono>
#include <cstdint>

/// The time that a producer is given for a search. A search that needs more gets it next time, and not at
/// once: the whole answer waits for it.
class UpdateTimeout
{
public:
    using Clock = std::chrono::steady_clock;

    /// The bound of searches that start now, one after the other: those that are left then get the first
    /// timeout.
    static Clock::time_point bound();

    /// Milliseconds for a search that starts now.
    std::uint64_t until(Clock::time_point bound) const;

    /// Doubles it. False when it was the longest already; then it starts from the first again, so that what
    /// never answers does not hold up the rest every time.
    bool grow();

private:
    std::uint64_t m_milliseconds = First;

    static constexpr std::uint64_t First = 500; // Never infinite: some producers then return at once, empty.
    static constexpr std::uint64_t Longest = 4000; // Interfaces and devices: less than a host has to answer.
};
