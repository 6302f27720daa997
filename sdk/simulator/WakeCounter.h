#pragma once

#include <atomic>
#include <cstdint>
#include <optional>

/// Wakes threads of any process that wait for a change of something in shared memory. A thread reads the
/// counter, examines what it waits for, and then waits for the counter to change.
class WakeCounter
{
public:
    std::uint32_t value() const { return m_value; }

    /// Call this after the change.
    void wake();

    /// Blocks until the counter differs from `seen`, at most until `until`: nanoseconds of the monotonic
    /// clock. May return early.
    void wait(std::uint32_t seen, std::int64_t until);

private:
    std::atomic<std::uint32_t> m_value{0};
    std::atomic<std::uint32_t> m_waiters{0};
};

/// Returns the nanoseconds of the monotonic clock, which is the same in all processes.
std::int64_t monotonicNow();
