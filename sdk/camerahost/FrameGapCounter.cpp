#include "sdk/camerahost/FrameGapCounter.h"

namespace {

constexpr std::uint64_t maxSixteenBitId = 65535;
constexpr std::uint64_t maxGap = 1000000; // A larger gap means that an ID is wrong.
constexpr std::uint64_t maxGapAtWrap = 1000; // A larger one is more likely a camera that counts anew.

} // namespace

std::uint64_t FrameGapCounter::next(std::optional<std::uint64_t> frameId)
{
    if (!frameId) { // The image counts, although its ID is unknown.
        if (m_last)
            m_last = m_isSixteenBit && *m_last == maxSixteenBitId ? 1 : *m_last + 1;
        return 0;
    }
    m_isSixteenBit = m_isSixteenBit && *frameId <= maxSixteenBitId;
    const std::uint64_t missing = m_last ? missingBefore(*frameId) : 0;
    m_last = frameId;
    return missing;
}

std::uint64_t FrameGapCounter::missingBefore(std::uint64_t frameId) const
{
    if (frameId > *m_last) {
        const std::uint64_t gap = frameId - *m_last - 1;
        return gap <= maxGap ? gap : 0;
    }
    if (!m_isSixteenBit || frameId == 0)
        return 0;
    const std::uint64_t gap = (maxSixteenBitId - *m_last) + (frameId - 1);
    return gap <= maxGapAtWrap ? gap : 0;
}
