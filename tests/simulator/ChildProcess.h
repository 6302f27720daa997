#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <sys/types.h>

/// A process that runs one function of the test and then waits until it is ended.
class ChildProcess
{
public:
    /// Starts the process and waits until the function has returned; its result is the answer. Nothing that
    /// the function returns by way of objects ends before the process does.
    explicit ChildProcess(const std::function<std::string()> &function);
    ~ChildProcess(); ///< Kills the process.
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    pid_t id() const { return m_process; }
    const std::string &answer() const { return m_answer; }

    /// Ends the process with SIGKILL and waits until it is gone.
    void kill();

private:
    pid_t m_process = -1;
    std::string m_answer;
};
