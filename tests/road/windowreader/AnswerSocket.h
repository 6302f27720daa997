#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>

/// A Unix socket that answers every connection on the GUI thread, and closes it.
class AnswerSocket : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<QByteArray()>;

    AnswerSocket(const QString &path, Answer answer);
    ~AnswerSocket() override;

    using Duration = std::chrono::steady_clock::duration;

    /// What all such sockets have taken of the GUI thread's time, which is not the program's doing.
    static Duration timeSpent();

private:
    void answer() const;

    int m_socket;
    const Answer m_answer;
};
