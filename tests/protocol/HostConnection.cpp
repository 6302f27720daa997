#include "tests/protocol/HostConnection.h"

#include "sdk/protocol/HostContract.h"
#include "tests/protocol/WaitForLine.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

HostConnection::HostConnection(const std::vector<std::string> &arguments)
{
    std::array<int, 2> ends{};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
    m_channel = LineChannel(ends[0]);

    std::vector<std::string> words{CVX_PRODUCER_HOST};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> argv;
    for (std::string &word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    // The number must differ from hostSocketDescriptor: dup2() of a descriptor to itself keeps FD_CLOEXEC
    // set.
    const int end = fcntl(ends[1], F_DUPFD_CLOEXEC, hostSocketDescriptor + 1);
    ::close(ends[1]);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, end, hostSocketDescriptor);
    posix_spawn(&m_process, CVX_PRODUCER_HOST, &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(end);
}

HostConnection::~HostConnection()
{
    if (m_process < 0)
        return;
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
}

std::optional<Message> HostConnection::receive()
{
    std::string line;
    if (waitForLine(m_channel, line) != LineChannel::Status::Line)
        return std::nullopt;
    return Message::fromLine(line);
}

int HostConnection::exitStatus()
{
    int status = 0;
    waitpid(std::exchange(m_process, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
