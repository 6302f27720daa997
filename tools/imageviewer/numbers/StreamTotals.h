#pragma once

#include "CvxCPP/Device.h"

/// Adds up the counters of successive streams. Each stream counts from 0, so a stream that was stopped and
/// started again, for example to change the pixel format, would otherwise forget its losses.
class StreamTotals
{
public:
    /// A new stream runs: the counters of the next update() begin at 0 again.
    void beginStream();

    /// Takes the counters of the present stream.
    void update(const CvxCPP::StreamStatistics &statistics);

    /// Returns the sums since the construction. The rates are those of the last update.
    const CvxCPP::StreamStatistics &totals() const { return m_totals; }

private:
    CvxCPP::StreamStatistics m_previous; // The last counters of the present stream.
    CvxCPP::StreamStatistics m_totals;
};
