#include "tools/kit/camera/CallThread.h"

#include <utility>

CallThread::CallThread() : m_thread([this] { run(); }) { }

CallThread::~CallThread()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void CallThread::post(Call call)
{
    {
        const std::lock_guard lock(m_mutex);
        m_calls.push_back(std::move(call));
    }
    m_changed.notify_all();
}

void CallThread::run()
{
    while (const Call call = next())
        call();
}

CallThread::Call CallThread::next()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_calls.empty() || m_isEnding; });
    if (m_calls.empty())
        return {};
    Call call = std::move(m_calls.front());
    m_calls.pop_front();
    return call;
}
