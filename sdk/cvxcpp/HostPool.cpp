#include "sdk/cvxcpp/HostPool.h"

#include "sdk/cvxcpp/StartOrder.h"

#include <algorithm>
#include <poll.h>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr auto closeStepInterval = 5ms;
constexpr auto killTimeout = 300ms; // Maximum time to wait for the exit of killed hosts.

/// Returns the timeout for poll(), limited to one minute and rounded up, so that poll() does not return too
/// early.
int pollTimeout(TimePoint until, TimePoint now)
{
    constexpr Milliseconds maxTimeout = 1min;
    const auto left = std::clamp<SteadyClock::duration>(until - now, 0ms, maxTimeout);
    return static_cast<int>(std::chrono::ceil<Milliseconds>(left).count());
}

} // namespace

HostPool::HostPool(const SystemOptions &options, const std::vector<std::string> &producerPaths)
    : m_options(options), m_isReadable(producerPaths.size(), false)
{
    for (const std::string &path : producerPaths)
        m_hosts.emplace_back(options, path);
}

std::vector<TimePoint> HostPool::startTimes() const
{
    std::vector<TimePoint> times;
    for (const ProducerSupervisor &host : m_hosts)
        times.push_back(host.startTime());
    return times;
}

void HostPool::step(const EventHandler &handle)
{
    const Milliseconds standstill = m_standstills.wokeUp(SteadyClock::now());
    if (standstill > 0ms) {
        for (ProducerSupervisor &host : m_hosts)
            host.extendDeadlines(standstill);
    }
    const std::vector<std::size_t> starts = chooseStarts(startTimes(), SteadyClock::now());
    for (std::size_t i = 0; i < m_hosts.size(); ++i) {
        const TimePoint now = SteadyClock::now();
        const bool isChosen = std::find(starts.begin(), starts.end(), i) != starts.end();
        if (m_hosts[i].startTime() <= now && !isChosen)
            continue;
        if (auto event = m_hosts[i].step(now, m_isReadable[i]))
            handle(i, *event);
    }
}

void HostPool::wait(int wakeDescriptor, TimePoint until)
{
    const TimePoint now = SteadyClock::now();
    std::vector<pollfd> descriptors{{wakeDescriptor, POLLIN, 0}};
    for (const ProducerSupervisor &host : m_hosts) {
        until = std::min(until, host.nextStep(now));
        // poll() fails if it gets more entries than the process may open descriptors.
        if (host.descriptor() >= 0)
            descriptors.push_back({host.descriptor(), POLLIN, 0});
    }
    const int timeout = pollTimeout(until, now);
    m_standstills.waitsUntil(now + Milliseconds(timeout));
    poll(descriptors.data(), descriptors.size(), timeout); // A signal may end the wait early.

    auto descriptor = descriptors.begin() + 1;
    for (std::size_t i = 0; i < m_hosts.size(); ++i)
        m_isReadable[i] = m_hosts[i].descriptor() >= 0 && (descriptor++)->revents != 0;
}

void HostPool::close()
{
    for (ProducerSupervisor &host : m_hosts)
        host.beginClose();
    const TimePoint start = SteadyClock::now();
    closeUntil(start + m_options.closeTimeout, [&](ProducerSupervisor &host) {
        host.stepClose(); // Must precede killUnclosed(), because the host may have ended in time.
        if (SteadyClock::now() >= start + host.closeTimeout())
            host.killUnclosed(SteadyClock::now());
    });
    for (ProducerSupervisor &host : m_hosts) {
        host.stepClose();
        host.killUnclosed(SteadyClock::now());
    }
    closeUntil(SteadyClock::now() + killTimeout, [](ProducerSupervisor &host) { host.stepClose(); });
}

bool HostPool::areAllGone() const
{
    return std::all_of(
        m_hosts.begin(), m_hosts.end(), [](const ProducerSupervisor &host) { return host.isGone(); });
}

void HostPool::closeUntil(TimePoint deadline, const std::function<void(ProducerSupervisor &)> &step)
{
    while (!areAllGone() && SteadyClock::now() < deadline) {
        std::this_thread::sleep_for(closeStepInterval);
        for (ProducerSupervisor &host : m_hosts)
            step(host);
    }
}
