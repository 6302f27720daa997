#pragma once

#include "tools/kit/live/ImageSink.h"

#include <deque>
#include <memory>
#include <mutex>

/// Counts the buffers of a stream that hold an image: one that is shown, measured, or waits for the disk.
class BufferWatch : public ImageSink
{
public:
    void take(const std::shared_ptr<const CvxCPP::Image> &image) override;

    /// Returns how many images of the stream are still in use. Any thread.
    unsigned usedBuffers() const;

private:
    mutable std::mutex m_mutex; // Protects the following member.
    mutable std::deque<std::weak_ptr<const CvxCPP::Image>> m_images;
};
