#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

/// A program that the test runs: its output and errors are gathered in one file, its input stays open until
/// the test closes it. It is killed at the latest with the object.
class ClientProcess
{
public:
    ClientProcess(const std::string &program, const std::vector<std::string> &arguments);
    ~ClientProcess();
    ClientProcess(const ClientProcess &) = delete;
    ClientProcess &operator=(const ClientProcess &) = delete;

    void closeInput();
    void kill(int signal);

    /// Waits for its end; -1 when it takes too long, 1000 and the signal when it was ended by one.
    int exitStatus();

    std::string output() const;
    std::size_t count(const std::string &text) const;
    bool waitFor(const std::string &text) const;

    /// The numbers that follow a text.
    std::vector<double> numbersAfter(const std::string &text) const;

private:
    pid_t m_process = -1;
    int m_input = -1;
    int m_output = -1;
};
