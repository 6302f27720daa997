#pragma once

#include <atomic>
#include <cstdint>

/// Notices that a thread hangs in a call of a producer: this thread notes its calls, and another one looks at
/// regular intervals. Counts looks instead of time, because the whole process may be stopped for a while.
class CallWatch
{
public:
    /// Notes a call from its construction to its end.
    class Call
    {
    public:
        explicit Call(CallWatch &watch) : m_watch(watch) { m_watch.step(); }
        ~Call() { m_watch.step(); }
        Call(const Call &) = delete;
        Call &operator=(const Call &) = delete;

    private:
        CallWatch &m_watch;
    };

    /// Returns at how many looks in a row the call that is now running was running already.
    int look()
    {
        const std::uint32_t steps = m_steps.load(std::memory_order_relaxed);
        const bool isSameCall = steps % 2 != 0 && steps == m_seen;
        m_seen = steps;
        m_looks = isSameCall ? m_looks + 1 : 0;
        return m_looks;
    }

private:
    void step() { m_steps.fetch_add(1, std::memory_order_relaxed); }

    std::atomic<std::uint32_t> m_steps{0}; // Odd while a call runs.
    std::uint32_t m_seen = 0; // At the last look.
    int m_looks = 0;
};
