#include "sdk/testing/Gate.h"

namespace CvxScripted {

Gate::~Gate()
{
    open();
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_inside == 0; });
}

void Gate::pass(std::chrono::milliseconds bound)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_arrived = true;
    ++m_inside;
    m_changed.notify_all();
    m_changed.wait_for(lock, bound, [this] { return m_open; });
    --m_inside;
    m_changed.notify_all();
}

bool Gate::waitForArrival(std::chrono::milliseconds bound)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, bound, [this] { return m_arrived; });
}

void Gate::open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_open = true;
    m_changed.notify_all();
}

} // namespace CvxScripted
