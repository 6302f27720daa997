#include "sdk/cvxcpp/HostProcess.h"

#include "sdk/cvxcpp/Descriptor.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int HostSocket = 3; // Where the host expects its end.

/// What the host gets: its socket, no standard input, our output and error, and nothing else.
class FileActions
{
public:
    explicit FileActions(int socket)
    {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_adddup2(
            &m_actions, socket, HostSocket); // First, or the next could close it.
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&m_actions, HostSocket + 1);
    }
    ~FileActions() { posix_spawn_file_actions_destroy(&m_actions); }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;

    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions;
};

/// Plain signal handling and a process group of its own: Ctrl-C is for the program, which ends its hosts
/// itself.
class Attributes
{
public:
    Attributes()
    {
        posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setpgroup(&m_attributes, 0);
        posix_spawnattr_setflags(
            &m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~Attributes() { posix_spawnattr_destroy(&m_attributes); }
    Attributes(const Attributes &) = delete;
    Attributes &operator=(const Attributes &) = delete;

    const posix_spawnattr_t *get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes;
};

} // namespace

HostProcess::~HostProcess()
{
    closeSocket();
    if (!isStarted())
        return;
    kill();
    waitpid(m_process, nullptr, WNOHANG); // Not waited for: it may be stuck in the kernel.
}

std::optional<std::string> HostProcess::start(const std::string &hostProgram, const std::string &producer)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return std::string("no socket for its host: ") + strerrordesc_np(errno);
    for (int &end : ends)
        end = aboveStandard(end);

    std::string program = hostProgram;
    std::string argument = producer;
    char *const arguments[] = {program.data(), argument.data(), nullptr};
    const int error = posix_spawn(
        &m_process, program.c_str(), FileActions(ends[1]).get(), Attributes().get(), arguments, environ);
    close(ends[1]);
    if (error != 0) {
        m_process = -1;
        close(ends[0]);
        return "cannot start " + hostProgram + ": " + strerrordesc_np(error);
    }
    m_socket = ends[0];
    return std::nullopt;
}

void HostProcess::send(const std::string &line) const
{
    // Never blocks and never falls short: there is one request on its way at a time, of a few bytes.
    [[maybe_unused]] const auto sent
        = ::send(m_socket, line.data(), line.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
}

void HostProcess::closeSocket()
{
    if (m_socket >= 0)
        close(std::exchange(m_socket, -1));
    m_lines.clear();
}

void HostProcess::kill() const
{
    if (!isStarted())
        return;
    ::kill(-m_process, SIGKILL);
    ::kill(m_process, SIGKILL); // It may have left its group.
}

std::optional<int> HostProcess::tryReap()
{
    siginfo_t info{};
    if (waitid(P_PID, static_cast<id_t>(m_process), &info, WEXITED | WNOHANG | WNOWAIT) != 0) {
        m_process = -1;
        return LostStatus;
    }
    if (info.si_pid == 0)
        return std::nullopt;
    ::kill(-m_process, SIGKILL); // Before the reaping, while the number of the group is still ours.
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return status;
}
