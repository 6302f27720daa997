#pragma once

#include "tools/kit/live/ImageSink.h"
#include "tools/kit/measure/run/FrameSource.h"

#include <condition_variable>
#include <deque>
#include <mutex>

/// Passes the images of a LiveStream to a measurement on another thread. Keeps the newest images only, so a
/// measurement that is slow leaves images out but never stops the stream. take() is called on the thread of
/// the stream, the others on that of the measurement.
class QueuedFrames final : public FrameSource, public ImageSink
{
public:
    /// @param capacity Images that are kept; each occupies a buffer of the stream.
    explicit QueuedFrames(std::size_t capacity);

    void take(const std::shared_ptr<const CvxCPP::Image> &image) override;

    /// Returns CvxErrorClosed after close().
    CvxCPP::CvxResult next(
        std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image) override;
    void discard() override;

    /// Ends a running next(), also every later one. Any thread.
    void close();

private:
    const std::size_t m_capacity;
    std::mutex m_mutex; // Protects the following members.
    std::condition_variable m_changed;
    std::deque<std::shared_ptr<const CvxCPP::Image>> m_images;
    bool m_isClosed = false;
};
