#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <thread>

/// A thread whose end can be awaited with a bound, because a call of a producer may never return.
class Worker
{
public:
    explicit Worker(std::function<void()> task);

    /// Abandons the thread if it still runs. Whatever it uses then has to exist until the process ends.
    ~Worker();
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;

    /// Waits until the thread has ended. Returns false if it still runs after `timeout`.
    bool join(std::chrono::milliseconds timeout);

private:
    std::future<void> m_end;
    std::thread m_thread;
};

/// Calls a function on a thread of its own. Returns false if the call has not returned within `timeout`;
/// whatever the function uses then has to exist until the process ends.
bool callWithin(std::chrono::milliseconds timeout, std::function<void()> function);
