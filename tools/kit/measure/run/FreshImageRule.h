#pragma once

#include "CvxCPP/Image.h"

#include <chrono>
#include <cstdint>
#include <optional>

/// Decides whether the exposure of an image has begun after a moment. Cameras do not say when an exposure has
/// begun, so the rule relies on the order of the images and on the time at which they were received: an
/// exposure that has begun before the moment ends one exposure time later at the latest, and its image
/// arrives within one further period. A free-running camera also has up to two such images under way, one
/// being exposed and one being transferred, however late they arrive.
class FreshImageRule
{
public:
    struct Timing
    {
        std::chrono::nanoseconds exposure{0};
        std::optional<std::chrono::nanoseconds> period; ///< Between two images; measured if not known.
        bool isTriggered = false; ///< Images come only after triggers.
    };

    /// @param moment Nanoseconds of CLOCK_MONOTONIC.
    FreshImageRule(std::uint64_t moment, const Timing &timing);

    /// Returns whether the next image, which is passed here, is such an image. Once one is, all later ones
    /// are.
    bool isFresh(const CvxCPP::ImageInfo &image);

    /// The longest time from the moment to the first fresh image of a camera that sends images.
    std::chrono::nanoseconds delay() const;

private:
    const std::uint64_t m_moment;
    Timing m_timing;
    std::uint64_t m_previous = 0; // Time at which the previous image was received; 0 before the first one.
    unsigned m_underWay; // Images that may have begun before the moment and have not arrived.
    bool m_isFresh = false;
};
