#pragma once

#include "tests/road/windowreader/AnswerSocket.h"

#include <QEvent>
#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

/// Posts events to the GUI thread, one after the other, and answers at its socket with the longest time that
/// one had to wait, as JSON. What the answers of these sockets take does not count, nor does the program's
/// start. It is told twice: as it was, and without the time in which the thread was ready to run but got no
/// processor, which on a busy machine is not the program's doing.
class EventLatency : public QObject
{
    Q_OBJECT

public:
    explicit EventLatency(const QString &socketPath);
    ~EventLatency() override;

    bool event(QEvent *event) override;

private:
    using Clock = std::chrono::steady_clock;

    void post();
    QByteArray result() const;
    Clock::duration processorDelay() const;

    AnswerSocket m_socket;
    const std::string m_statistics; // The file of the GUI thread's.
    int m_samples = 0;
    Clock::duration m_longest{};
    Clock::duration m_longestOwn{};
    bool m_isFirst = true;

    // Of the event that is under way; written before it is posted, and read when it has come.
    Clock::time_point m_postedAt;
    Clock::duration m_spentBefore{}; // By the sockets.
    Clock::duration m_delayBefore{}; // Without a processor.

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isStopping = false;
    bool m_isPosted = false;
    std::thread m_thread;
};
