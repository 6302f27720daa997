#include "sdk/producerhost/UpdateTimeout.h"

#include <algorithm>

UpdateTimeout::Clock::time_point UpdateTimeout::deadline()
{
    return Clock::now() + std::chrono::milliseconds(maxTimeout);
}

std::uint64_t UpdateTimeout::until(Clock::time_point deadline) const
{
    const auto remaining = std::chrono::round<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return std::clamp<std::uint64_t>(
        remaining > 0 ? std::uint64_t(remaining) : 0, minTimeout, m_milliseconds);
}

bool UpdateTimeout::grow()
{
    const bool canGrow = m_milliseconds < maxTimeout;
    m_milliseconds = canGrow ? 2 * m_milliseconds : minTimeout;
    return canGrow;
}
