#include "sdk/simulator/WakeCounter.h"

#include <climits>
#include <ctime>
#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::int64_t perSecond = 1'000'000'000;

} // namespace

void WakeCounter::wake()
{
    ++m_value;
    if (m_waiters != 0)
        syscall(SYS_futex, &m_value, FUTEX_WAKE, INT_MAX, nullptr, nullptr, 0);
}

void WakeCounter::wait(std::uint32_t seen, std::int64_t until)
{
    const timespec end{until / perSecond, until % perSecond};
    ++m_waiters;
    // The timeout of this operation is an absolute time of the monotonic clock.
    syscall(SYS_futex, &m_value, FUTEX_WAIT_BITSET, seen, &end, nullptr, FUTEX_BITSET_MATCH_ANY);
    --m_waiters;
}

std::int64_t monotonicNow()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * perSecond + now.tv_nsec;
}
