#include "sdk/producerhost/ProcessorTime.h"

#include <ctime>

std::uint32_t ProcessorTime::milliseconds() const
{
    const auto used = std::chrono::round<std::chrono::milliseconds>(ofProcess() - m_start);
    return static_cast<std::uint32_t>(used.count());
}

std::chrono::nanoseconds ProcessorTime::ofProcess()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time); // Time in user mode and in the kernel.
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}
