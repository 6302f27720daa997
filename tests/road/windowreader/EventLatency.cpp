#include "tests/road/windowreader/EventLatency.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <unistd.h>

namespace {

constexpr auto interval = std::chrono::milliseconds(5); // From one event's end to the next.

} // namespace

EventLatency::EventLatency(const QString &socketPath)
    : m_socket(socketPath, [this] { return result(); }),
      m_statistics("/proc/self/task/" + std::to_string(gettid()) + "/schedstat")
{
    m_thread = std::thread(&EventLatency::post, this);
}

EventLatency::~EventLatency()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void EventLatency::post()
{
    std::unique_lock lock(m_mutex);
    while (!m_changed.wait_for(lock, interval, [this] { return m_isStopping; })) {
        m_changed.wait(lock, [this] { return m_isStopping || !m_isPosted; });
        if (m_isStopping)
            return;
        m_isPosted = true;
        lock.unlock(); // Or the GUI thread could wait for us, when we get no processor.
        m_spentBefore = AnswerSocket::timeSpent();
        m_delayBefore = processorDelay();
        m_postedAt = Clock::now();
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        lock.lock();
    }
}

bool EventLatency::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    const Clock::duration spent = AnswerSocket::timeSpent() - m_spentBefore;
    if (!m_isFirst) {
        const Clock::duration waited = Clock::now() - m_postedAt - spent;
        m_longest = std::max(m_longest, waited);
        m_longestOwn = std::max(m_longestOwn, waited - (processorDelay() - m_delayBefore));
        ++m_samples;
    }
    m_isFirst = false; // That one has waited for the program to come up.
    {
        const std::lock_guard lock(m_mutex);
        m_isPosted = false;
    }
    m_changed.notify_all();
    return true;
}

/// How long the GUI thread has been ready to run, but did not, since its start.
EventLatency::Clock::duration EventLatency::processorDelay() const
{
    std::int64_t running = 0, waiting = 0; // Nanoseconds.
    std::ifstream(m_statistics) >> running >> waiting;
    return std::chrono::nanoseconds(waiting);
}

QByteArray EventLatency::result() const
{
    const std::chrono::duration<double, std::milli> longest = m_longest, own = m_longestOwn;
    return QJsonDocument(
        QJsonObject{{QStringLiteral("samples"), m_samples}, {QStringLiteral("longest"), longest.count()},
            {QStringLiteral("longestOwn"), own.count()}})
        .toJson(QJsonDocument::Compact);
}
