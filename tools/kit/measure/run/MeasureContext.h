#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/measure/run/FrameSource.h"
#include "tools/kit/measure/run/Sentence.h"

#include <cstddef>
#include <functional>

/// Called with the number of steps that are done and the number of all. Returns false to cancel.
using MeasureProgress = std::function<bool(std::size_t done, std::size_t total)>;

/// What a measurement works with, on its own thread. Whoever runs the measurement has called
/// Device::BeginTemporaryChanges(), and ends the temporary changes afterwards: settings that the measurement
/// changes are put back, also if it is cancelled or the program crashes.
struct MeasureContext
{
    CvxCPP::Device &device;
    FrameSource &frames;
    const MeasureProgress &progress;
};

/// The sentence of every measurement that was cancelled.
Sentence cancelledSentence();

/// Takes `count` complete images and passes each to `take`, which returns a sentence to end the measurement,
/// or an empty one. The first image is one whose exposure has begun after this call: images that the camera
/// may have begun before are left out, and so are incomplete ones. Waits for each image for at most
/// `imageLimit` in addition to the exposure time and a few image periods of the camera; cancels if the
/// progress says so. Returns why not all images were taken; empty if they were.
Sentence takeImages(const MeasureContext &context, std::size_t count, std::chrono::milliseconds imageLimit,
    const std::function<Sentence(const CvxCPP::Image &)> &take);

/// The time in which every camera should send an image, unless it waits for a trigger.
constexpr std::chrono::milliseconds usualImageLimit{10000};
