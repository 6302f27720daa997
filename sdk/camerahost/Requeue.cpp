#include "sdk/camerahost/Requeue.h"

#include <thread>

namespace {

constexpr std::chrono::milliseconds waitSlice(100);
constexpr std::chrono::milliseconds pauseAfterFailure(10);

} // namespace

void Requeue::start()
{
    m_worker = std::make_unique<Worker>([this] { run(); });
}

bool Requeue::stop(std::chrono::milliseconds timeout)
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_change.notify_one();
    return !m_worker || m_worker->join(timeout);
}

void Requeue::run()
{
    while (waitUntilShort()) {
        const CallWatch::Call call(m_calls);
        m_ring.waitForRelease(waitSlice);
        queueReleased();
        if (m_hasFailed)
            std::this_thread::sleep_for(pauseAfterFailure);
    }
}

/// Waits until the producer has too few buffers. Returns false once the thread has to end.
bool Requeue::waitUntilShort()
{
    std::unique_lock lock(m_mutex);
    m_change.wait(lock, [this] { return m_isStopping || isShort(); });
    return !m_isStopping;
}

void Requeue::queueReleased()
{
    StreamRing::BufferSet released;
    if (m_ring.takeReleased(released)) {
        for (std::uint32_t buffer = 0; buffer < m_buffers.size(); ++buffer) {
            if ((released[buffer / 64] >> buffer % 64 & 1U) != 0)
                queue(buffer);
        }
    }
    if (!isShort())
        return;
    { // The thread either sees the shortage or already waits for the notification.
        const std::lock_guard lock(m_mutex);
    }
    m_change.notify_one();
}

void Requeue::queue(std::uint32_t buffer)
{
    if (m_buffers.queue(buffer))
        return;
    m_ring.release(buffer); // So that it is tried again.
    m_hasFailed = true;
}
