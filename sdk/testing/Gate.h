#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace CvxScripted {

/// Blocks SDK calls until the test opens the gate. A test uses a gate to simulate a slow SDK without
/// sleeping.
class Gate
{
public:
    /// Opens the gate and waits until every blocked call has continued, so that a test may return early.
    ~Gate()
    {
        open();
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_inside == 0; });
    }

    /// Blocks the caller until the gate is open, but not longer than `bound`, so that a failed test ends.
    void pass(std::chrono::milliseconds bound = std::chrono::seconds(30))
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_hasArrival = true;
        ++m_inside;
        m_changed.notify_all();
        m_changed.wait_for(lock, bound, [this] { return m_isOpen; });
        --m_inside;
        m_changed.notify_all();
    }

    /// Blocks until pass() has been called for the first time. Returns false if that takes longer than
    /// `bound`.
    bool waitForArrival(std::chrono::milliseconds bound = std::chrono::seconds(10))
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, bound, [this] { return m_hasArrival; });
    }

    /// Ends the blocking of all present and future callers.
    void open()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOpen = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_inside = 0;
    bool m_hasArrival = false;
    bool m_isOpen = false;
};

} // namespace CvxScripted
