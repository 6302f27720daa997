#pragma once

#include "CvxCPP/Image.h"

#include <memory>

/// Receives every image of a stream.
class ImageSink
{
public:
    virtual ~ImageSink() = default;

    /// Called on the thread of the stream, so it must return quickly. The image occupies a buffer of the
    /// stream for as long as it is kept.
    virtual void take(const std::shared_ptr<const CvxCPP::Image> &image) = 0;
};
