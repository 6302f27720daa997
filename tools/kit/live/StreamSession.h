#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/live/SinkList.h"

#include <QObject>

#include <atomic>
#include <thread>

/// The streams of one device, one after the other, with the thread that receives their images.
/// start() and stop() are called on the thread of the connection, everything else on any thread.
class StreamSession : public QObject
{
    Q_OBJECT

public:
    StreamSession();

    /// Stops the stream. Blocks for at most 3 s, but not noticeably after hasThreadEnded().
    ~StreamSession() override;

    CvxCPP::CvxResult start(CvxCPP::Device &device, unsigned buffers);

    /// Stops the stream; the sinks then have received all images that have arrived before.
    void stop();

    /// Returns true from start() until stop(), or until the stream has ended by itself.
    bool isRunning() const { return m_isRunning; }

    /// Returns why the stream has ended by itself; success if it has not.
    CvxCPP::CvxResult endReason() const;

    /// Stops giving images to sinks, and lets the thread stop the stream and end. Waits only for a running
    /// take(). No stream can be started afterwards.
    void abandon();

    bool hasThreadEnded() const { return !m_isReceiving; }

    /// Returns the counters of the running stream, or those of the last one.
    CvxCPP::StreamStatistics statistics() const;

    /// Returns the counters of all streams of this session together, and the rates of statistics().
    CvxCPP::StreamStatistics totals() const;

    SinkList &sinks() { return m_sinks; }

signals:
    /// The stream has ended, and nobody has stopped it. Emitted on the receiving thread.
    void ended();

private:
    void receive(CvxCPP::Stream &stream);

    SinkList m_sinks;
    std::thread m_thread;
    std::atomic<bool> m_isAbandoned = false;
    std::atomic<bool> m_isStopping = false;
    std::atomic<bool> m_isHanging = false; ///< The stream could not be stopped and will not report its end.
    std::atomic<bool> m_isRunning = false;
    std::atomic<bool> m_isReceiving = false; ///< The thread runs.

    mutable std::mutex m_mutex; // Protects the four below.
    std::shared_ptr<CvxCPP::Stream> m_stream;
    CvxCPP::StreamStatistics m_lastStatistics;
    CvxCPP::StreamStatistics m_earlier; ///< Sums of the streams that have ended.
    CvxCPP::CvxResult m_endReason;
};
