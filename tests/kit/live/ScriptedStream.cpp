#include "tests/kit/live/ScriptedStream.h"

#include <utility>

using CvxCPP::CvxResult;

ScriptedStream::ScriptedStream(std::function<void()> onStop) : m_onStop(std::move(onStop)) { }

ScriptedStream::~ScriptedStream()
{
    (void)Stop();
}

void ScriptedStream::deliver(const std::shared_ptr<const CvxCPP::Image> &image)
{
    const std::lock_guard lock(m_mutex);
    m_images.push_back(image);
    ++m_delivered;
    m_changed.notify_all();
}

void ScriptedStream::failOnce(const CvxResult &result)
{
    const std::lock_guard lock(m_mutex);
    m_failure = result;
    m_changed.notify_all();
}

void ScriptedStream::end(const CvxResult &result)
{
    const std::lock_guard lock(m_mutex);
    m_end = result;
    m_changed.notify_all();
}

CvxResult ScriptedStream::WaitForImage(
    std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, timeout, [this] { return !m_images.empty() || !m_failure || !m_end; });
    if (!m_failure)
        return std::exchange(m_failure, {});
    if (m_images.empty())
        return m_end ? CvxResult{CvxCPP::CvxErrorTimeout, {}} : m_end;
    image = m_images.front();
    m_images.pop_front();
    return {};
}

CvxResult ScriptedStream::GetStatistics(CvxCPP::StreamStatistics &statistics) const
{
    const std::lock_guard lock(m_mutex);
    statistics = {};
    statistics.delivered = m_delivered;
    return {};
}

CvxResult ScriptedStream::Stop()
{
    {
        const std::lock_guard lock(m_mutex);
        if (std::exchange(m_isStopped, true))
            return {};
        if (m_end)
            m_end = {CvxCPP::CvxErrorClosed, {}};
    }
    m_changed.notify_all();
    m_onStop();
    return {};
}
