#pragma once

#include "sdk/cvxcpp/ProducerSupervisor.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/cvxcpp/Timing.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <vector>

/// The hosts of all producers of a session. Runs them on the calling thread: waits for their input and for
/// the next deadline, starts a few at a time, and closes all of them at the end.
class HostPool
{
public:
    HostPool(const SystemOptions &options, const std::vector<std::string> &producerPaths);

    std::size_t size() const { return m_hosts.size(); }
    ProducerSupervisor &host(std::size_t producer) { return m_hosts[producer]; }
    const ProducerSupervisor &host(std::size_t producer) const { return m_hosts[producer]; }

    /// Called with the producer to which the event happened.
    using EventHandler = std::function<void(std::size_t producer, ProducerSupervisor::Event &event)>;

    /// Gives every host its turn.
    void step(const EventHandler &handle);

    /// Blocks until a host has something to do, `wakeDescriptor` becomes readable, or the time has come.
    void wait(int wakeDescriptor, TimePoint until);

    /// Closes the producers and ends their hosts. Blocks for at most SystemOptions::closeTimeout and a
    /// little.
    void close();

private:
    std::vector<TimePoint> startTimes() const;
    bool areAllGone() const;
    void closeUntil(TimePoint deadline);

    const SystemOptions &m_options;
    std::deque<ProducerSupervisor> m_hosts; // Hosts cannot be moved.
    std::vector<bool> m_isReadable; // For each host, as of the last wait.
};
