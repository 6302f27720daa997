#pragma once

#include "CvxCPP/Device.h"
#include "tools/imageviewer/numbers/LossAdvice.h"

#include <cstdint>
#include <deque>

/// Counts what was lost in the last ten seconds.
class LossWindow
{
public:
    /// Takes the counters at a time.
    /// @param milliseconds Of a clock that never goes back.
    void add(std::int64_t milliseconds, const CvxCPP::StreamStatistics &totals);

    RecentLosses losses() const;

    void clear() { m_samples.clear(); }

private:
    struct Sample
    {
        std::int64_t milliseconds;
        RecentLosses totals;
    };

    std::deque<Sample> m_samples; // The first one is the last one before the window.
};
