#include "sdk/aravis/FrameGaps.h"

#include <utility>

namespace {

constexpr std::uint64_t maxShortId = 0xFFFF;
constexpr std::uint64_t maxDelay = 64; // A later image looks like a restart.
constexpr std::uint64_t maxGapAtWrap = 1000; // A wider gap looks like a restart.

/// Returns how many steps a number that starts again needs from the first ID to the second one.
std::uint64_t stepsAcrossWrap(std::uint64_t from, std::uint64_t to)
{
    return maxShortId - from + to;
}

bool isLate(std::uint64_t frameId, std::uint64_t last)
{
    if (frameId <= last)
        return last - frameId <= maxDelay;
    return frameId <= maxShortId && stepsAcrossWrap(frameId, last) <= maxDelay;
}

} // namespace

std::uint64_t FrameGaps::missingBefore(std::uint64_t frameId)
{
    if (m_last && isLate(frameId, *m_last))
        return 0;
    const auto last = std::exchange(m_last, frameId);
    if (!last)
        return 0;
    if (frameId > *last)
        return frameId - *last - 1;
    if (*last > maxShortId || frameId == 0)
        return 0;
    const std::uint64_t missing = stepsAcrossWrap(*last, frameId) - 1;
    return missing <= maxGapAtWrap ? missing : 0;
}

std::uint64_t FrameGaps::expectedId() const
{
    if (!m_last)
        return 0;
    return *m_last == maxShortId ? 1 : *m_last + 1;
}
