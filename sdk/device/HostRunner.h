#pragma once

#include "sdk/process/HostProcess.h"
#include "sdk/process/Timing.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Runs the host of a device, one process after the other. Use a runner on one thread only, which must
/// outlive the hosts.
class HostRunner
{
public:
    explicit HostRunner(std::string program) : m_program(std::move(program)) { }
    /// Waits for killed hosts that the kernel has not ended yet, for at most a second.
    ~HostRunner();
    HostRunner(const HostRunner &) = delete;
    HostRunner &operator=(const HostRunner &) = delete;

    /// Starts a host. The previous one must have been ended.
    HostProcess::StartResult start(const std::string &producerPath);

    /// Returns how the host has ended, as a sentence for people, or nothing while it runs.
    std::optional<std::string> exitSentence();

    /// Waits until the host has ended by itself and returns how, or nothing at the deadline.
    std::optional<std::string> awaitExit(TimePoint deadline);

    /// Kills the host if it still runs, and waits for its end for at most `killTimeout`.
    void kill();
    static constexpr Milliseconds killTimeout{200};

private:
    void reapKilled();

    const std::string m_program;
    std::unique_ptr<HostProcess> m_process; // Null if there is no host.
    std::vector<std::unique_ptr<HostProcess>> m_killed; // Hosts that were killed and have not ended yet.
    std::optional<std::string> m_exitSentence; // How the last host has ended.
};
