#pragma once

#include "tools/kit/live/ImageSink.h"

#include <condition_variable>
#include <mutex>
#include <vector>

/// The sinks of a stream. Passes images to them without holding a lock.
class SinkList
{
public:
    void add(ImageSink *sink);

    /// Waits for a running take(). Must not be called by a sink.
    void remove(ImageSink *sink);

    /// Removes all sinks, also those that are added later. Waits as remove() does.
    void close();

    /// Passes the image to all sinks. Called on one thread only.
    void take(const std::shared_ptr<const CvxCPP::Image> &image);

private:
    void waitForTake(std::unique_lock<std::mutex> &lock);

    std::mutex m_mutex;
    std::condition_variable m_taken; // Notified after every take().
    std::vector<ImageSink *> m_sinks;
    bool m_isClosed = false;
    bool m_isTaking = false;
    std::uint64_t m_takeCount = 0;

    std::vector<ImageSink *> m_receivers; // Only for take(), which so allocates nothing.
};
