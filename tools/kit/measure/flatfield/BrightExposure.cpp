#include "tools/kit/measure/flatfield/BrightExposure.h"

#include "tools/kit/measure/flatfield/FrameStack.h"
#include "tools/kit/measure/flatfield/ReferenceChecks.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

constexpr double highestPlace = 0.88; // Level of the brightest part of the picture, as a share of the range.
constexpr double tolerance = 0.04;
constexpr int maxSteps = 10;
constexpr double exposureClippedLimit = 0.002;

/// Reads the feature of the exposure time. Returns false if the camera has none that can be written.
bool readExposure(Device &device, NodeState &state)
{
    for (const char *name : {"ExposureTime", "ExposureTimeAbs"}) {
        std::vector<NodeState> states;
        if (!device.ReadStates({name}, states) || states.front().lockReason != LockReason::None
            || !std::holds_alternative<double>(states.front().value))
            continue;
        state = states.front();
        return true;
    }
    return false;
}

double withinLimits(const NodeState &state, double time)
{
    if (const auto *const increment = std::get_if<double>(&state.increment); increment && *increment > 0)
        time = std::round(time / *increment) * *increment;
    if (const auto *const maximum = std::get_if<double>(&state.maximum))
        time = std::min(time, *maximum);
    if (const auto *const minimum = std::get_if<double>(&state.minimum))
        time = std::max(time, *minimum);
    return time;
}

/// Returns the factor for the exposure time by which an image gets the wanted level.
double exposureFactor(const FrameStack &image, double darkLevel)
{
    const double range = image.maxValue();
    const double level = image.brightestLevel();
    const FrameStack::PartLevels &parts = image.partLevels().front();
    double sum = 0;
    for (const float part : parts)
        sum += double(part);
    const double mean = sum / static_cast<double>(parts.size());
    const double highest
        = level * double(*std::max_element(parts.begin(), parts.end())) / std::max(mean, 1.0);
    const double smallest = range / 1000; // A dark image only tells that more light is needed.
    const double factor = std::min((bestLevel * range - darkLevel) / std::max(level - darkLevel, smallest),
        (highestPlace * range - darkLevel) / std::max(highest - darkLevel, smallest));
    const bool isClipped = image.clippedShare() > exposureClippedLimit;
    return std::clamp(factor, 0.1, isClipped ? 0.5 : 10.0);
}

} // namespace

Sentence setBrightExposure(const MeasureContext &context, double darkLevel, bool isLineScan)
{
    // These images are no progress of the measurement, whose number of images is known.
    const MeasureProgress isContinued
        = [&context](std::size_t, std::size_t) { return context.progress(0, 0); };
    const MeasureContext single{context.device, context.frames, isContinued};
    for (int step = 0; step < maxSteps; ++step) {
        NodeState exposure;
        if (!readExposure(context.device, exposure))
            return {QT_TRANSLATE_NOOP("Sentence",
                "The exposure time of this camera cannot be set. Change the light until the picture has "
                "about "
                "70 % of the range, and measure without setting the exposure time.")};
        FrameStack image(isLineScan);
        const Sentence problem = takeImages(single, 1, usualImageLimit, [&](const Image &taken) {
            return image.add(rawImage(taken), taken.GetInfo().offsetX, taken.GetInfo().offsetY);
        });
        if (!problem.isEmpty())
            return problem;
        const double factor = exposureFactor(image, darkLevel);
        const double present = std::get<double>(exposure.value);
        const double time = withinLimits(exposure, present * factor);
        if (std::abs(factor - 1) < tolerance || std::abs(time / present - 1) < tolerance / 4)
            return {};
        if (const CvxResult result = context.device.WriteFloat(exposure.name, time); !result)
            return untranslated(result.text);
    }
    return {};
}
