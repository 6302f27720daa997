#pragma once

#include "sdk/protocol/LineChannel.h"

#include <optional>
#include <string>
#include <sys/types.h>

/// Starts, kills and reaps one CvxProducerHost. Start and reap it on the same thread, which must outlive it:
/// the kernel ends the host together with the thread that started it.
class ProducerProcess
{
public:
    ProducerProcess() = default;
    ~ProducerProcess(); ///< Kills the host if it still runs.
    ProducerProcess(const ProducerProcess &) = delete;
    ProducerProcess &operator=(const ProducerProcess &) = delete;

    struct StartResult
    {
        LineChannel channel; ///< Our end of the socket to the host; closed on failure.
        std::string failure; ///< Empty on success.
    };

    /// Starts the host program for one producer.
    StartResult start(const std::string &hostProgram, const std::string &producerPath);

    /// Returns true while there is a process, running or not yet reaped.
    bool isStarted() const { return m_process > 0; }

    /// Kills the host and whatever its producer has started.
    void kill() const;

    /// Replaces an exit status that the program has taken from us, by ignoring SIGCHLD or waiting for all
    /// children.
    static constexpr int unknownStatus = -1;

    /// Returns the exit status if the host has ended, and forgets the process then. Does not block.
    std::optional<int> tryReap();

private:
    pid_t m_process = -1; // Also the number of its process group.
};
