#include "tests/simulator/ChildProcess.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

ChildProcess::ChildProcess(const std::function<std::string()> &function)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    m_process = fork();
    if (m_process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        const std::string answer = function();
        const bool isSent = write(ends[1], answer.data(), answer.size()) >= 0;
        close(ends[1]);
        while (isSent)
            pause();
        _exit(1);
    }
    close(ends[1]);
    char buffer[1000];
    for (ssize_t size = 0; (size = read(ends[0], buffer, sizeof buffer)) > 0;)
        m_answer.append(buffer, static_cast<std::size_t>(size));
    close(ends[0]);
}

ChildProcess::~ChildProcess()
{
    kill();
}

void ChildProcess::kill()
{
    if (m_process < 0)
        return;
    ::kill(m_process, SIGKILL);
    waitpid(std::exchange(m_process, -1), nullptr, 0);
}
