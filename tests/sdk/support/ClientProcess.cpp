#include "tests/sdk/support/ClientProcess.h"

#include "tests/sdk/support/Waiting.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

ClientProcess::ClientProcess(const std::string &program, const std::vector<std::string> &arguments)
{
    std::array<int, 2> input{};
    if (pipe2(input.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    m_input = input[1];
    m_output = memfd_create("output", MFD_CLOEXEC);

    std::vector<std::string> texts = arguments;
    texts.insert(texts.begin(), program);
    std::vector<char *> argv;
    for (std::string &text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, m_output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, m_output, STDERR_FILENO);
    const int error = posix_spawn(&m_process, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(input[0]);
    if (error != 0)
        throw std::runtime_error("cannot start " + program);
}

ClientProcess::~ClientProcess()
{
    closeInput();
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    close(m_output);
}

void ClientProcess::closeInput()
{
    if (m_input >= 0)
        close(std::exchange(m_input, -1));
}

void ClientProcess::kill(int signal)
{
    ::kill(m_process, signal);
    waitpid(m_process, nullptr, 0);
    m_process = -1;
}

int ClientProcess::exitStatus()
{
    int status = 0;
    if (!waitUntil([&] { return waitpid(m_process, &status, WNOHANG) == m_process; }))
        return -1;
    m_process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

std::string ClientProcess::output() const
{
    std::string text;
    std::array<char, 4096> block;
    for (ssize_t count = 0;
         (count = pread(m_output, block.data(), block.size(), static_cast<off_t>(text.size()))) > 0;)
        text.append(block.data(), static_cast<std::size_t>(count));
    return text;
}

std::size_t ClientProcess::count(const std::string &text) const
{
    const std::string all = output();
    std::size_t number = 0;
    for (auto at = all.find(text); at != std::string::npos; at = all.find(text, at + 1))
        ++number;
    return number;
}

bool ClientProcess::waitFor(const std::string &text) const
{
    return waitUntil([&] { return count(text) > 0; });
}
