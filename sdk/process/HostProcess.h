#pragma once

#include "sdk/protocol/LineChannel.h"

#include <optional>
#include <string>
#include <sys/types.h>

/// Starts, kills and reaps one host program. Start and reap the host on the same thread, which must outlive
/// the host: the kernel kills a producer host when the thread that started it ends.
class HostProcess
{
public:
    HostProcess() = default;
    ~HostProcess(); ///< Kills the host if it still runs.
    HostProcess(const HostProcess &) = delete;
    HostProcess &operator=(const HostProcess &) = delete;

    struct StartResult
    {
        LineChannel channel; ///< Our end of the socket to the host; closed on failure.
        std::string failure; ///< Empty on success.
    };

    /// Starts the host program for one producer.
    StartResult start(const std::string &hostProgram, const std::string &producerPath);

    /// Returns true while the host runs or has not been reaped yet.
    bool isStarted() const { return m_process > 0; }

    /// Kills the host and the processes that its producer has started in the same process group.
    void kill() const;

    /// tryReap() returns this value if the exit status is lost because the program ignores SIGCHLD or waits
    /// for all children.
    static constexpr int unknownStatus = -1;

    /// If the host has exited, returns its exit status and releases the process; otherwise returns nothing.
    /// Does not block.
    std::optional<int> tryReap();

private:
    pid_t m_process = -1; // The process ID is also the number of the process group.
};
