#pragma once

#include "CvxCPP/Device.h"

#include <chrono>
#include <memory>

/// Provides the images of a measurement. Used by one thread.
class FrameSource
{
public:
    virtual ~FrameSource() = default;

    /// Waits for the next image, for at most `timeout`. Returns the errors of Stream::WaitForImage().
    virtual CvxCPP::CvxResult next(
        std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image)
        = 0;

    /// Forgets the images that have arrived. Images of the past show what the camera saw before a change.
    virtual void discard() = 0;
};
