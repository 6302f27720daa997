#pragma once

#include "CvxCPP/Device.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

/// A stream whose images and failures a test defines.
class ScriptedStream : public CvxCPP::Stream
{
public:
    /// @param onStop Called by the first Stop().
    explicit ScriptedStream(std::function<void()> onStop);
    ~ScriptedStream() override;

    void deliver(const std::shared_ptr<const CvxCPP::Image> &image);

    /// The next WaitForImage() fails with this result, once.
    void failOnce(const CvxCPP::CvxResult &result);

    /// WaitForImage() fails with this result as soon as all images were fetched.
    void end(const CvxCPP::CvxResult &result);

    CvxCPP::CvxResult WaitForImage(
        std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image) override;
    CvxCPP::CvxResult GetStatistics(CvxCPP::StreamStatistics &statistics) const override;
    CvxCPP::CvxResult Stop() override;

private:
    const std::function<void()> m_onStop;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::shared_ptr<const CvxCPP::Image>> m_images;
    CvxCPP::CvxResult m_failure;
    CvxCPP::CvxResult m_end;
    std::uint64_t m_delivered = 0;
    bool m_isStopped = false;
};
