#include "sdk/features/CallSize.h"

#include <algorithm>

void CallSize::wasRead(int count, Duration duration)
{
    constexpr Duration maxTime = std::chrono::milliseconds(2500);
    constexpr Duration::rep maxSize = 25;
    m_slowest = std::max(m_slowest, duration / count);
    const Duration::rep fitting = m_slowest > Duration::zero() ? maxTime / m_slowest : maxSize;
    // A small call that was fast says little about a large one.
    const Duration::rep known = std::max(m_next, 2 * count);
    m_next = static_cast<int>(std::clamp<Duration::rep>(std::min(fitting, known), 1, maxSize));
}
