#pragma once

#include "sdk/camerahost/AnnouncedBuffers.h"
#include "sdk/camerahost/CallWatch.h"
#include "sdk/camerahost/Worker.h"
#include "sdk/protocol/StreamRing.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

/// Passes the buffers that the program has released back to the producer. The fetch thread does this after
/// each image. While the producer has fewer than two buffers, a thread waits for releases too: the camera
/// may otherwise lose images before the fetch thread gets the next one.
class Requeue
{
public:
    Requeue(AnnouncedBuffers &buffers, StreamRing &ring) : m_buffers(buffers), m_ring(ring) { }

    void start();

    /// Ends the thread. Returns false if it still runs after `timeout`, because the producer does not return.
    bool stop(std::chrono::milliseconds timeout);

    /// Queues the released buffers. Called by the fetch thread.
    void queueReleased();

    /// Queues one buffer, which then counts as released if the producer does not accept it.
    void queue(std::uint32_t buffer);

    /// Returns true if the thread hangs in a call of the producer. Call it five times per second.
    bool isHanging() { return m_calls.look() >= maxLooks; }

    /// A call that is seen running so often in a row takes two seconds, and does not count as slow any more.
    static constexpr int maxLooks = 10;

    /// Returns true if the producer has refused a buffer since the last call.
    bool takeFailure() { return m_hasFailed.exchange(false); }

private:
    void run();
    bool waitUntilShort();
    bool isShort() const { return m_buffers.queued() < minQueued; }

    static constexpr std::uint32_t minQueued = 2; // One that is being filled, and the next one.

    AnnouncedBuffers &m_buffers;
    StreamRing &m_ring;
    CallWatch m_calls;
    std::atomic<bool> m_hasFailed{false};
    std::atomic<bool> m_isStopping{false};
    std::mutex m_mutex; // Only for waiting; the state is atomic.
    std::condition_variable m_change;
    std::unique_ptr<Worker> m_worker;
};
