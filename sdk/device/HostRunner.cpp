#include "sdk/device/HostRunner.h"

#include "sdk/process/ExitReason.h"

#include <poll.h>

HostProcess::StartResult HostRunner::start(const std::string &producerPath)
{
    m_exitSentence.reset();
    m_process.emplace();
    return m_process->start(m_program, producerPath);
}

std::optional<std::string> HostRunner::exitSentence()
{
    if (!m_process || !m_process->isStarted())
        return m_exitSentence;
    if (const auto status = m_process->tryReap())
        m_exitSentence = "The process of the camera " + exitReason(*status) + '.';
    return m_exitSentence;
}

std::optional<std::string> HostRunner::awaitExit(TimePoint deadline)
{
    constexpr int checkInterval = 2; // Milliseconds.
    for (;;) {
        const bool isOver = SteadyClock::now() >= deadline;
        auto sentence = exitSentence();
        if (sentence || isOver || !m_process || !m_process->isStarted())
            return sentence;
        poll(nullptr, 0, checkInterval);
    }
}

void HostRunner::kill()
{
    if (!m_process)
        return;
    m_process->kill();
    awaitExit(SteadyClock::now() + killTimeout);
    m_process.reset(); // A process that is stuck in the kernel is left to itself.
}
