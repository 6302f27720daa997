#include "sdk/producerhost/InterfaceUpdater.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t MostThreads = 8;
constexpr auto SerialTime = std::chrono::milliseconds(20); // Up to this, threads cost more than they gain.
constexpr int ToleratedFailures = 1; // One may be a hiccup; after the second, what it gave counts.

bool isExpectedQuick(const std::vector<OpenInterface> &interfaces)
{
    Clock::duration total{};
    for (const OpenInterface &interface : interfaces) {
        if (!interface.isUpdated)
            return false;
        total += interface.updateTime;
    }
    return total < SerialTime;
}

} // namespace

InterfaceUpdater::InterfaceUpdater(const ProducerLibrary &library) : m_library(library) { }

void InterfaceUpdater::update(OpenInterface &interface) const
{
    update(interface, UpdateTimeout::bound());
}

void InterfaceUpdater::update(OpenInterface &interface, Clock::time_point bound) const
{
    const auto start = Clock::now();
    interface.problems.clear();
    DeviceReader reader(m_library, interface.problems);
    GenTL::bool8_t changed = 0; // Not every producer writes it, so it is not looked at.
    auto problem = m_library.call("IFUpdateDeviceList", m_library.IFUpdateDeviceList, interface.handle,
        &changed, interface.timeout.until(bound));
    const bool updated = !problem;
    const bool getsMoreTime = problem && isTimeout(*problem) && interface.timeout.grow();
    if (problem && !getsMoreTime)
        interface.problems.add(std::move(*problem));
    std::vector<DeviceRecord> devices;
    const bool isComplete = updated && reader.readDevices(interface.handle, devices);
    interface.failedUpdates = isComplete ? 0 : interface.failedUpdates + 1;
    if (isComplete || interface.failedUpdates > ToleratedFailures || interface.record.devices.empty())
        interface.record.devices = std::move(devices);
    interface.isUpdated = true;
    interface.updateTime = Clock::now() - start;
}

void InterfaceUpdater::updateAll(std::vector<OpenInterface> &interfaces) const
{
    const Clock::time_point bound = UpdateTimeout::bound();
    std::atomic<std::size_t> next{0};
    const auto work = [&](Clock::time_point until) {
        while (Clock::now() < until) {
            const std::size_t index = next++;
            if (index >= interfaces.size())
                return;
            update(interfaces[index], bound);
        }
    };
    // Interfaces that answered at once so far need no threads, and no wake-ups while nobody looks.
    if (isExpectedQuick(interfaces))
        work(Clock::now() + SerialTime);

    const std::size_t left = interfaces.size() - std::min(next.load(), interfaces.size());
    std::vector<std::thread> threads;
    try {
        while (threads.size() + 1 < std::min(left, MostThreads))
            threads.emplace_back(work, Clock::time_point::max());
    } catch (const std::system_error &) {
        // Fewer threads, then; this one does the rest.
    }
    work(Clock::time_point::max());
    for (std::thread &thread : threads)
        thread.join();
}
