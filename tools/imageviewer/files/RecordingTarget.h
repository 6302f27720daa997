#pragma once

#include "CvxCPP/Device.h"

#include <QString>

#include <cstdint>
#include <memory>

/// What a target has done with the images so far.
struct TargetCounters
{
    std::uint64_t written = 0;
    std::uint64_t incomplete = 0; ///< Written images that lack data.
    std::uint64_t unwritten = 0; ///< Images that a failure kept from the file.
    std::uint64_t skipped = 0; ///< Images that were not kept because too many were waiting.
    std::uint64_t waiting = 0;
    std::uint64_t bytes = 0; ///< Bytes of the written images as the camera has sent them.
};

/// Where a recording goes. add(), counters() and problem() may be called from any thread.
class RecordingTarget
{
public:
    virtual ~RecordingTarget() = default;

    /// Creates the file. May block as long as the disk does. Returns why that failed, for people; empty if it
    /// succeeded.
    virtual QString open() = 0;

    /// Takes an image. Returns at once, whether the disk is fast or slow.
    virtual void add(const std::shared_ptr<const CvxCPP::Image> &image) = 0;

    virtual TargetCounters counters() const = 0;

    /// Returns why the recording cannot go on, for people; empty while it can.
    virtual QString problem() const = 0;

    /// Writes the waiting images, closes the file, and writes counters and losses into the sidecar. Blocks
    /// until that is done. Returns why the recording is not complete; empty if it is.
    virtual QString finish(const CvxCPP::StreamStatistics &losses) = 0;
};
