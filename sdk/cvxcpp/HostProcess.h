#pragma once

#include "sdk/cvxcpp/AnswerLines.h"

#include <optional>
#include <string>
#include <sys/types.h>

/// One running CvxProducerHost: the process, and the socket that it answers on. Start and reap it on one and
/// the same thread, which must outlive it: the kernel ends the host together with the thread that started it.
class HostProcess
{
public:
    HostProcess() = default;
    ~HostProcess(); ///< Kills what still runs.
    HostProcess(const HostProcess &) = delete;
    HostProcess &operator=(const HostProcess &) = delete;

    /// Starts the host for one producer; gives the reason in words when that fails.
    std::optional<std::string> start(const std::string &hostProgram, const std::string &producer);

    /// There is a process, running or not yet reaped.
    bool isStarted() const { return m_process > 0; }

    /// -1 when there is none.
    int descriptor() const { return m_socket; }

    /// Sends one line; a failure shows as the end of the answers.
    void send(const std::string &line) const;

    using Reading = AnswerLines::Reading;

    /// Reads what is there, without waiting, up to the end of a line, which is stored without its line feed.
    Reading readLine(std::string &line) { return m_lines.read(m_socket, line); }

    /// Something has come after the last line that was read.
    bool hasMore() const { return m_lines.hasMore(); }

    void closeSocket();

    /// Kills the host and whatever its producer has started.
    void kill() const;

    /// Stands for a status that the program has lost for us: it ignores SIGCHLD or waits for all children.
    static constexpr int LostStatus = -1;

    /// The exit status, once the host has ended. After that there is no process any more.
    std::optional<int> tryReap();

private:
    pid_t m_process = -1; // Also its process group.
    int m_socket = -1;
    AnswerLines m_lines;
};
