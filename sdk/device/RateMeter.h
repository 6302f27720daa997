#pragma once

#include "sdk/process/Timing.h"

#include <cstdint>
#include <deque>

/// Computes the rates of a stream over the last second from samples of its counters.
class RateMeter
{
public:
    /// The counters at one time.
    struct Sample
    {
        TimePoint time{};
        std::uint64_t images = 0;
        std::uint64_t bytes = 0;
    };

    struct Rates
    {
        double imagesPerSecond = 0;
        double bytesPerSecond = 0;
    };

    /// Samples closer together than this interval are ignored.
    static constexpr Milliseconds sampleInterval{100};
    static constexpr Milliseconds window{1000};

    /// Starts at the first sample.
    void add(const Sample &sample);

    /// Returns the mean rates between the newest sample that is at least `window` old, or the first sample,
    /// and `now`. Returns zeros before the second image.
    Rates rates(const Sample &now) const;

private:
    std::deque<Sample> m_samples; // The first one is the newest that is at least `window` old, if any is.
};
