#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// Makes calls one after the other on a thread of its own.
class CallThread
{
public:
    using Call = std::function<void()>;

    CallThread();

    /// Blocks until all calls have returned.
    ~CallThread();

    CallThread(const CallThread &) = delete;
    CallThread &operator=(const CallThread &) = delete;

    /// Makes a call after the earlier ones. Any thread.
    void post(Call call);

private:
    void run();
    Call next(); // Returns an empty function when there is nothing more to do.

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Call> m_calls;
    bool m_isEnding = false;
    std::thread m_thread; // Started last.
};
