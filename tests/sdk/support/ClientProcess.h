#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

/// Runs a program. One file receives its standard output and standard error. Its standard input stays open
/// until the test closes it. The destructor kills the program.
class ClientProcess
{
public:
    ClientProcess(const std::string &program, const std::vector<std::string> &arguments);
    ~ClientProcess();
    ClientProcess(const ClientProcess &) = delete;
    ClientProcess &operator=(const ClientProcess &) = delete;

    void closeInput();
    void kill(int signal);

    /// Waits until the program ends and returns its exit status. Returns 1000 plus the signal number if a
    /// signal ended the program, and -1 if the program does not end.
    int exitStatus();

    std::string output() const;
    std::size_t count(const std::string &text) const;
    bool waitFor(const std::string &text) const;

private:
    pid_t m_process = -1;
    int m_input = -1;
    int m_output = -1;
};
