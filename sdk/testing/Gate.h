#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace CvxScripted {

/// Holds an SDK call back until a test lets it go on: the slow answer without a sleep.
class Gate
{
public:
    Gate() = default;
    Gate(const Gate &) = delete;
    Gate &operator=(const Gate &) = delete;

    /// Opens, and waits until everybody has left: a test that fails early takes its gate with it.
    ~Gate();

    /// For the caller to be held: returns once the gate is open. After `bound` it goes on by itself, so that
    /// a failed test ends.
    void pass(std::chrono::milliseconds bound = std::chrono::seconds(30));

    /// True when a caller stands before, or has passed, the gate within `bound`.
    bool waitForArrival(std::chrono::milliseconds bound = std::chrono::seconds(10));

    /// Lets everybody pass from now on.
    void open();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_inside = 0;
    bool m_arrived = false;
    bool m_open = false;
};

} // namespace CvxScripted
