#include "sdk/producerhost/UpdateTimeout.h"

#include <algorithm>

namespace {

// These values are milliseconds. Some producers return at once if the timeout is infinite.
constexpr std::uint32_t minBackgroundTimeout = 1000; // Requests with less time are short searches.
constexpr std::uint64_t maxTimeout = 4000; // Twice this value is less than the reply timeout of the library.
constexpr std::uint64_t lateTimeout = 500; // Used after the deadline, unless the request has less time.

} // namespace

UpdateTimeout::Clock::time_point UpdateTimeout::deadline()
{
    return Clock::now() + std::chrono::milliseconds(maxTimeout);
}

bool UpdateTimeout::isShort(std::uint32_t requested)
{
    return requested < minBackgroundTimeout;
}

std::uint64_t UpdateTimeout::until(std::uint32_t requested, Clock::time_point deadline) const
{
    const auto remaining = std::chrono::round<std::chrono::milliseconds>(deadline - Clock::now()).count();
    const std::uint64_t longest = limit(requested);
    return std::clamp<std::uint64_t>(
        remaining > 0 ? std::uint64_t(remaining) : 0, std::min(lateTimeout, longest), longest);
}

bool UpdateTimeout::grow(std::uint32_t requested)
{
    if (isShort(requested))
        return true;
    const bool canGrow = limit(requested) < maxTimeout;
    m_grown = canGrow ? 2 * limit(requested) : 0;
    return canGrow;
}

std::uint64_t UpdateTimeout::limit(std::uint32_t requested) const
{
    return isShort(requested) ? requested : std::max<std::uint64_t>(requested, m_grown);
}
