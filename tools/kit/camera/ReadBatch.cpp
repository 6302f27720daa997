#include "tools/kit/camera/ReadBatch.h"

#include <algorithm>

namespace {

constexpr ReadBatch::Duration wantedTime = std::chrono::milliseconds(200);
constexpr ReadBatch::Duration maxTime = std::chrono::milliseconds(2500);

/// Returns how many features fit into a time.
std::size_t countWithin(ReadBatch::Duration time, ReadBatch::Duration perFeature)
{
    if (perFeature * static_cast<int>(ReadBatch::maxSize) <= time)
        return ReadBatch::maxSize;
    return static_cast<std::size_t>(time / perFeature);
}

} // namespace

void ReadBatch::wasRead(std::size_t count, Duration duration)
{
    const Duration perFeature = duration / static_cast<Duration::rep>(count);
    m_slowest = std::max(m_slowest, perFeature);
    // A small call that was fast says little about a large one.
    const std::size_t known = std::max(m_size, std::min(2 * count, maxSize));
    const std::size_t fitting = std::min(countWithin(wantedTime, perFeature), known);
    m_size = std::max<std::size_t>(1, std::min(fitting, countWithin(maxTime, m_slowest)));
}
