#include "sdk/aravis/FrameGaps.h"

#include <utility>

namespace {

constexpr std::uint64_t maxShortId = 0xFFFF;
constexpr std::uint64_t maxGapAtWrap = maxShortId / 2; // A wider gap looks like a restart.

} // namespace

std::uint64_t FrameGaps::missingBefore(std::uint64_t frameId)
{
    const auto last = std::exchange(m_last, frameId);
    if (!last || frameId == *last)
        return 0;
    if (frameId > *last)
        return frameId - *last - 1;
    if (*last > maxShortId || frameId == 0)
        return 0;
    const std::uint64_t missing = maxShortId - *last + frameId - 1;
    return missing <= maxGapAtWrap ? missing : 0;
}
