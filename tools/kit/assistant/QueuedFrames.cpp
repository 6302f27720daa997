#include "tools/kit/assistant/QueuedFrames.h"

#include <utility>

QueuedFrames::QueuedFrames(std::size_t capacity) : m_capacity(capacity) { }

void QueuedFrames::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    std::shared_ptr<const CvxCPP::Image> oldest; // Released after the lock.
    {
        const std::lock_guard lock(m_mutex);
        if (m_isClosed)
            return;
        m_images.push_back(image);
        if (m_images.size() > m_capacity) {
            oldest = std::move(m_images.front());
            m_images.pop_front();
        }
    }
    m_changed.notify_one();
}

CvxCPP::CvxResult QueuedFrames::next(
    std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image)
{
    std::unique_lock lock(m_mutex);
    if (!m_changed.wait_for(lock, timeout, [this] { return m_isClosed || !m_images.empty(); }))
        return {CvxCPP::CvxErrorTimeout, "The camera has sent no image."};
    if (m_isClosed)
        return {CvxCPP::CvxErrorClosed, "The images of the camera have ended."};
    image = std::move(m_images.front());
    m_images.pop_front();
    return {};
}

void QueuedFrames::discard()
{
    std::deque<std::shared_ptr<const CvxCPP::Image>> images; // Released after the lock.
    const std::lock_guard lock(m_mutex);
    images.swap(m_images);
}

void QueuedFrames::close()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isClosed = true;
    }
    m_changed.notify_all();
}
