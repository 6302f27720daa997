#include "sdk/device/HostRunner.h"

#include "sdk/process/ExitReason.h"

#include <algorithm>
#include <poll.h>

namespace {

constexpr int reapInterval = 2; // Milliseconds.

} // namespace

HostRunner::~HostRunner()
{
    const TimePoint deadline = SteadyClock::now() + std::chrono::seconds(1);
    for (reapKilled(); !m_killed.empty() && SteadyClock::now() < deadline; reapKilled())
        poll(nullptr, 0, reapInterval);
}

HostProcess::StartResult HostRunner::start(const std::string &producerPath)
{
    m_exitSentence.reset();
    reapKilled();
    m_process = std::make_unique<HostProcess>();
    return m_process->start(m_program, producerPath);
}

std::optional<std::string> HostRunner::exitSentence()
{
    reapKilled();
    if (!m_process || !m_process->isStarted())
        return m_exitSentence;
    if (const auto status = m_process->tryReap())
        m_exitSentence = "The process of the camera " + exitReason(*status) + '.';
    return m_exitSentence;
}

std::optional<std::string> HostRunner::awaitExit(TimePoint deadline)
{
    for (;;) {
        const bool isOver = SteadyClock::now() >= deadline;
        auto sentence = exitSentence();
        if (sentence || isOver || !m_process || !m_process->isStarted())
            return sentence;
        poll(nullptr, 0, reapInterval);
    }
}

void HostRunner::kill()
{
    if (!m_process)
        return;
    m_process->kill();
    awaitExit(SteadyClock::now() + killTimeout);
    if (m_process->isStarted()) // The kernel needs longer to end the process.
        m_killed.push_back(std::move(m_process));
    m_process.reset();
    reapKilled();
}

void HostRunner::reapKilled()
{
    m_killed.erase(std::remove_if(m_killed.begin(), m_killed.end(),
                       [](const auto &process) { return process->tryReap().has_value(); }),
        m_killed.end());
}
