#include "sdk/producerhost/InterfaceSearch.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>

namespace {

using Clock = OpenInterface::Clock;
using Interfaces = std::vector<std::unique_ptr<OpenInterface>>;

constexpr std::size_t maxThreads = 16; // 32 network interfaces are searched in twice the timeout.
constexpr auto maxSerialTime = std::chrono::milliseconds(20); // Threads would make a shorter search slower.

bool isExpectedQuick(const Interfaces &interfaces, std::uint32_t timeout)
{
    if (timeout == 0)
        return true;
    Clock::duration total{};
    for (const auto &interface : interfaces) {
        if (!interface->searchTime())
            return false;
        total += *interface->searchTime();
    }
    return total < maxSerialTime;
}

} // namespace

void searchInterfaces(const Interfaces &interfaces, std::uint32_t timeout)
{
    const Clock::time_point deadline = UpdateTimeout::deadline();
    std::atomic<std::size_t> next{0};
    const auto work = [&](Clock::time_point end) {
        while (Clock::now() < end) {
            const std::size_t index = next++;
            if (index >= interfaces.size())
                return;
            interfaces[index]->search(timeout, deadline);
        }
    };
    // If the previous searches were quick, no threads are started, so that an idle machine wakes up less
    // often.
    if (isExpectedQuick(interfaces, timeout))
        work(Clock::now() + maxSerialTime);

    const std::size_t remaining = interfaces.size() - std::min(next.load(), interfaces.size());
    std::vector<std::thread> threads;
    try {
        while (threads.size() + 1 < std::min(remaining, maxThreads))
            threads.emplace_back(work, Clock::time_point::max());
    } catch (const std::system_error &) {
        // The system allows no more threads. The existing threads search the remaining interfaces.
    }
    work(Clock::time_point::max());
    for (std::thread &thread : threads)
        thread.join();
}
