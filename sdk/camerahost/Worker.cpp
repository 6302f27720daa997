#include "sdk/camerahost/Worker.h"

#include <utility>

Worker::Worker(std::function<void()> task)
{
    std::packaged_task<void()> packaged(std::move(task));
    m_end = packaged.get_future();
    m_thread = std::thread(std::move(packaged));
}

Worker::~Worker()
{
    if (m_thread.joinable())
        m_thread.detach();
}

bool Worker::join(std::chrono::milliseconds timeout)
{
    if (!m_thread.joinable())
        return true;
    if (m_end.wait_for(timeout) != std::future_status::ready)
        return false;
    m_thread.join();
    return true;
}

bool callWithin(std::chrono::milliseconds timeout, std::function<void()> function)
{
    return Worker(std::move(function)).join(timeout);
}
