#include "tools/imageviewer/numbers/StreamTotals.h"

using CvxCPP::StreamStatistics;

namespace {

/// Adds the growth of a counter. A counter that is smaller than before has begun anew.
template <typename Counter>
void addGrowth(Counter StreamStatistics::*counter, const StreamStatistics &previous,
    const StreamStatistics &present, StreamStatistics &totals)
{
    const Counter before = present.*counter < previous.*counter ? 0 : previous.*counter;
    totals.*counter += present.*counter - before;
}

} // namespace

void StreamTotals::beginStream()
{
    m_previous = {};
}

void StreamTotals::update(const StreamStatistics &statistics)
{
    using Counter = std::uint64_t StreamStatistics::*;
    constexpr Counter counters[]
        = {&StreamStatistics::delivered, &StreamStatistics::incomplete, &StreamStatistics::lost,
            &StreamStatistics::underruns, &StreamStatistics::skipped, &StreamStatistics::bytes};
    for (const Counter counter : counters)
        addGrowth(counter, m_previous, statistics, m_totals);
    addGrowth(&StreamStatistics::reopenCount, m_previous, statistics, m_totals);
    m_totals.imagesPerSecond = statistics.imagesPerSecond;
    m_totals.bytesPerSecond = statistics.bytesPerSecond;
    m_previous = statistics;
}
