#pragma once

#include "tools/kit/measure/run/FrameSource.h"

/// Provides the images of a stream that nobody else fetches.
class StreamFrames final : public FrameSource
{
public:
    explicit StreamFrames(CvxCPP::Stream &stream);

    CvxCPP::CvxResult next(
        std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image) override;
    void discard() override;

private:
    CvxCPP::Stream &m_stream;
    CvxCPP::CvxResult m_failure; // Occurred while images were discarded; next() returns it.
};
