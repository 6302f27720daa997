#include "tools/kit/live/SinkList.h"

#include <algorithm>

void SinkList::add(ImageSink *sink)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isClosed)
        m_sinks.push_back(sink);
}

void SinkList::remove(ImageSink *sink)
{
    std::unique_lock lock(m_mutex);
    m_sinks.erase(std::remove(m_sinks.begin(), m_sinks.end(), sink), m_sinks.end());
    waitForTake(lock);
}

void SinkList::close()
{
    std::unique_lock lock(m_mutex);
    m_isClosed = true;
    m_sinks.clear();
    waitForTake(lock);
}

void SinkList::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    {
        const std::lock_guard lock(m_mutex);
        m_receivers = m_sinks;
        m_isTaking = true;
    }
    for (ImageSink *const sink : m_receivers)
        sink->take(image);
    {
        const std::lock_guard lock(m_mutex);
        m_isTaking = false;
        ++m_takeCount;
    }
    m_taken.notify_all();
}

void SinkList::waitForTake(std::unique_lock<std::mutex> &lock)
{
    // The next take() may have begun before this thread wakes up, but it no longer knows the sink.
    const std::uint64_t count = m_takeCount;
    m_taken.wait(lock, [&] { return !m_isTaking || m_takeCount != count; });
}
