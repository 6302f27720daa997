#include "sdk/process/HostProcess.h"

#include "sdk/process/Descriptor.h"
#include "sdk/protocol/HostContract.h"

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

/// Sets the descriptors of the host: its socket, an empty standard input, and our standard output and
/// error. All other descriptors are closed.
class FileActions
{
public:
    explicit FileActions(int socket)
    {
        posix_spawn_file_actions_init(&m_actions);
        // This action is the first one, because the next actions may replace the descriptor of the socket.
        posix_spawn_file_actions_adddup2(&m_actions, socket, hostSocketDescriptor);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&m_actions, hostSocketDescriptor + 1);
    }
    ~FileActions() { posix_spawn_file_actions_destroy(&m_actions); }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;

    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions;
};

/// Starts the host with default signal handling, whatever the program has set, and in a separate process
/// group: Ctrl-C reaches only the program, which ends its hosts itself.
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
    if (!isStarted())
        return;
    kill();
    // The call must not block, because the host may be stuck in the kernel.
    waitpid(m_process, nullptr, WNOHANG);
}

HostProcess::StartResult HostProcess::start(const std::string &hostProgram, const std::string &producerPath)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return {LineChannel(), std::string("cannot create a socket for its host: ") + strerrordesc_np(errno)};
    LineChannel ours(aboveStandard(ends[0]));
    const LineChannel theirs(aboveStandard(ends[1]));

    std::string program = hostProgram;
    std::string argument = producerPath;
    char *const arguments[] = {program.data(), argument.data(), nullptr};
    const int error = posix_spawn(&m_process, program.c_str(), FileActions(theirs.descriptor()).get(),
        Attributes().get(), arguments, environ);
    if (error == 0)
        return {std::move(ours), {}};
    m_process = -1;
    return {LineChannel(), "cannot start " + hostProgram + ": " + strerrordesc_np(error)};
}

void HostProcess::kill() const
{
    if (!isStarted())
        return;
    ::kill(-m_process, SIGKILL);
    ::kill(m_process, SIGKILL); // The host may have left its process group.
}

std::optional<int> HostProcess::tryReap()
{
    siginfo_t info{};
    if (waitid(P_PID, static_cast<id_t>(m_process), &info, WEXITED | WNOHANG | WNOWAIT) != 0) {
        m_process = -1;
        return unknownStatus;
    }
    if (info.si_pid == 0)
        return std::nullopt;
    ::kill(-m_process, SIGKILL); // The kernel may reuse the number of the group after the host is reaped.
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return status;
}
