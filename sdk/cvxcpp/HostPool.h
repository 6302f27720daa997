#pragma once

#include "sdk/cvxcpp/ProducerSupervisor.h"
#include "sdk/cvxcpp/StandstillRule.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/process/Timing.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <vector>

/// Manages the hosts of all producers of a session on the calling thread: starts a few hosts at a time,
/// waits for their messages and for the next deadline, and closes all hosts at the end.
class HostPool
{
public:
    HostPool(const SystemOptions &options, const std::vector<std::string> &producerPaths);

    std::size_t size() const { return m_hosts.size(); }
    ProducerSupervisor &host(std::size_t producer) { return m_hosts[producer]; }
    const ProducerSupervisor &host(std::size_t producer) const { return m_hosts[producer]; }

    /// A handler is called with an event and the producer to which the event happened.
    using EventHandler = std::function<void(std::size_t producer, ProducerSupervisor::Event &event)>;

    /// Lets every host do what is due, starts at most `maxStarts` hosts, and calls `handle` for every
    /// event.
    void step(const EventHandler &handle);

    /// Blocks until a host has something to do, `wakeDescriptor` becomes readable, or the time `until` is
    /// reached.
    void wait(int wakeDescriptor, TimePoint until);

    /// Closes the producers and ends their hosts. A search cannot be interrupted, so a host whose search does
    /// not end within SystemOptions::searchEndTimeout is killed. Blocks for at most
    /// SystemOptions::closeTimeout, plus 300 ms if hosts have to be killed.
    void close();

private:
    std::vector<TimePoint> startTimes() const;
    bool areAllGone() const;
    void closeUntil(TimePoint deadline, const std::function<void(ProducerSupervisor &)> &step);

    const SystemOptions &m_options;
    std::deque<ProducerSupervisor> m_hosts; // A deque, because hosts cannot be moved.
    StandstillRule m_standstills;
    std::vector<bool> m_isReadable; // Whether the last wait() found each host readable.
};
