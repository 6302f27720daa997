#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

/// A program that the test runs. Its output and errors go into one file; its input stays open until the test
/// closes it. The destructor kills the program.
class ClientProcess
{
public:
    ClientProcess(const std::string &program, const std::vector<std::string> &arguments);
    ~ClientProcess();
    ClientProcess(const ClientProcess &) = delete;
    ClientProcess &operator=(const ClientProcess &) = delete;

    void closeInput();
    void kill(int signal);

    /// Waits for the end. Returns -1 if it does not come, and 1000 plus the signal that ended the program.
    int exitStatus();

    std::string output() const;
    std::size_t count(const std::string &text) const;
    bool waitFor(const std::string &text) const;

private:
    pid_t m_process = -1;
    int m_input = -1;
    int m_output = -1;
};
