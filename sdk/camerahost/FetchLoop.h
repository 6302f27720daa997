#pragma once

#include "sdk/camerahost/CallWatch.h"
#include "sdk/camerahost/DataStream.h"
#include "sdk/camerahost/EventRule.h"
#include "sdk/camerahost/FrameGapCounter.h"
#include "sdk/camerahost/ImageReader.h"
#include "sdk/camerahost/Requeue.h"
#include "sdk/camerahost/Worker.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

/// The thread that fetches the images of one stream: waits for filled buffers, describes each image, and
/// hands it over to the program.
class FetchLoop
{
public:
    enum class Health
    {
        Good,
        Suspicious, ///< The camera may be lost.
        Broken ///< The producer cannot go on, or hangs.
    };

    FetchLoop(DataStream &stream, AnnouncedBuffers &buffers, Requeue &requeue, StreamRing &ring,
        const ImageSetup &images, bool onlyNewest);

    void start();

    /// Ends the thread. Returns false if it still runs after `timeout`, because the producer does not return.
    bool stop(std::chrono::milliseconds timeout);

    /// Returns whether the stream works; a suspicion is reported once. Call it five times per second, because
    /// it counts how often a call of the producer was running.
    Health takeHealth();

private:
    using Clock = std::chrono::steady_clock;

    void run();
    EventAction waitForEvent(GenTL::BUFFER_HANDLE &buffer);
    bool handle(EventAction action, GenTL::BUFFER_HANDLE buffer);
    bool deliver(GenTL::BUFFER_HANDLE handle);
    void skipUnclaimed();
    void updateUnderruns();
    void pause() const;

    DataStream &m_stream;
    AnnouncedBuffers &m_buffers;
    Requeue &m_requeue;
    StreamRing &m_ring;
    ImageReader m_reader;
    const bool m_onlyNewest;
    EventRule m_rule;
    FrameGapCounter m_gaps;
    Clock::time_point m_receivedAt; // When EventGetData returned.
    std::optional<Clock::time_point> m_failingSince; // While the producer reports nothing but failures.
    Clock::time_point m_nextUpdate; // Time of the next update of the underruns.
    std::uint64_t m_underrunsBefore = 0; // The producer counts since the stream was opened.
    CallWatch m_calls;
    std::atomic<bool> m_isStopping{false};
    std::atomic<Health> m_health{Health::Good};
    std::unique_ptr<Worker> m_worker;
};
