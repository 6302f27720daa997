#pragma once

#include <mutex>

/// A mutex that a thread cannot lock again while another thread waits for it. With std::mutex, a thread that
/// is always busy and releases the mutex only for an instant would keep all other threads waiting.
class FairMutex
{
public:
    void lock()
    {
        const std::lock_guard next(m_next);
        m_mutex.lock();
    }
    void unlock() { m_mutex.unlock(); }

private:
    std::mutex m_next; // Locked by the one thread that gets the mutex next.
    std::mutex m_mutex;
};
