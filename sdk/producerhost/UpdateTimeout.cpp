#include "sdk/producerhost/UpdateTimeout.h"

#include <algorithm>

UpdateTimeout::Clock::time_point UpdateTimeout::bound()
{
    return Clock::now() + std::chrono::milliseconds(Longest);
}

std::uint64_t UpdateTimeout::until(Clock::time_point bound) const
{
    const auto left = std::chrono::round<std::chrono::milliseconds>(bound - Clock::now()).count();
    return std::clamp<std::uint64_t>(left > 0 ? std::uint64_t(left) : 0, First, m_milliseconds);
}

bool UpdateTimeout::grow()
{
    const bool canGrow = m_milliseconds < Longest;
    m_milliseconds = canGrow ? 2 * m_milliseconds : First;
    return canGrow;
}
