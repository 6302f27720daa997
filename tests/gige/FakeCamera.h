#pragma once

#include <csignal>
#include <gtest/gtest.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

/// Runs Aravis's fake GigE Vision camera as a process with the address 127.0.0.1.
class FakeCamera
{
public:
    explicit FakeCamera(std::vector<std::string> options = {})
    {
        std::vector<std::string> command{
            "setpriv", "--pdeathsig", "KILL", FAKE_CAMERA_PROGRAM, "--interface", "127.0.0.1"};
        command.insert(command.end(), options.begin(), options.end());
        std::vector<char *> arguments;
        for (std::string &argument : command)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        const int error = posix_spawnp(&m_process, arguments[0], nullptr, nullptr, arguments.data(), environ);
        EXPECT_EQ(error, 0);
        if (error != 0)
            m_process = -1;
    }
    ~FakeCamera() { end(); }
    FakeCamera(const FakeCamera &) = delete;
    FakeCamera &operator=(const FakeCamera &) = delete;

    /// Kills the process, as if the camera was unplugged.
    void end()
    {
        if (m_process < 0)
            return;
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
        m_process = -1;
    }

private:
    pid_t m_process = -1; // Negative if the program does not run.
};
