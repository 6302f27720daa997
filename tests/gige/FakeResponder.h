#pragma once

#include "sdk/gige/FairMutex.h"
#include "tests/gvcp/AcknowledgementBuilder.h"

#include <arpa/inet.h>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

/// Answers discovery commands as one or more cameras would. Runs in the test's own network namespace, in
/// which lo is the only network interface.
class FakeResponder
{
public:
    using Answers = std::vector<AcknowledgementBuilder>;

    FakeResponder() : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in any{}; // A socket with a specific address would not receive broadcasts.
        any.sin_family = AF_INET;
        any.sin_port = htons(3956);
        if (m_socket < 0 || bind(m_socket, reinterpret_cast<const sockaddr *>(&any), sizeof any) != 0)
            throw std::runtime_error("The port of the cameras is not free.");
        m_thread = std::thread([this] { run(); });
    }
    ~FakeResponder()
    {
        shutdown(m_socket, SHUT_RDWR); // Ends the thread's recvfrom().
        m_thread.join();
        close(m_socket);
    }
    FakeResponder(const FakeResponder &) = delete;
    FakeResponder &operator=(const FakeResponder &) = delete;

    /// Sets the answers to every further command. The responder sets their request IDs.
    void setAnswers(Answers answers)
    {
        const std::lock_guard lock(m_mutex);
        m_answers = std::move(answers);
    }

    /// Waits for a number of further searches, but not longer than a minute. Returns false if there are
    /// fewer.
    bool awaitSearches(int number)
    {
        std::unique_lock lock(m_mutex);
        return m_commandArrived.wait_for(lock, std::chrono::minutes(1),
            [this, wanted = m_searches + number] { return m_searches >= wanted; });
    }

    /// Waits for a second command of the same search, but not longer than a minute. Returns false if there
    /// is none.
    bool awaitRepetition()
    {
        std::unique_lock lock(m_mutex);
        return m_commandArrived.wait_for(
            lock, std::chrono::minutes(1), [this] { return m_commands > m_searches; });
    }

    bool hasRepetition() const
    {
        const std::lock_guard lock(m_mutex);
        return m_commands > m_searches;
    }

    /// Sends an answer to the last command now. If `change` is not 0, changes the request ID with it.
    void sendNow(AcknowledgementBuilder answer, std::uint16_t change = 0)
    {
        const std::lock_guard lock(m_mutex);
        send(answer.requestId(m_lastRequest ^ change));
    }

    /// Returns the number of commands that have arrived.
    int commands() const
    {
        const std::lock_guard lock(m_mutex);
        return m_commands;
    }

private:
    void run()
    {
        std::uint8_t command[64];
        sockaddr_in sender{};
        for (;;) {
            socklen_t size = sizeof sender;
            if (recvfrom(m_socket, command, sizeof command, 0, reinterpret_cast<sockaddr *>(&sender), &size)
                < 8)
                return;
            const std::lock_guard lock(m_mutex);
            ++m_commands;
            m_sender = sender;
            const auto request = static_cast<std::uint16_t>(command[6] << 8 | command[7]);
            m_searches += request != m_lastRequest ? 1 : 0;
            m_lastRequest = request;
            for (AcknowledgementBuilder &answer : m_answers)
                send(answer.requestId(m_lastRequest));
            m_commandArrived.notify_all();
        }
    }

    void send(const AcknowledgementBuilder &answer) const
    {
        sendto(m_socket, answer.bytes().data(), answer.bytes().size(), 0,
            reinterpret_cast<const sockaddr *>(&m_sender), sizeof m_sender);
    }

    const int m_socket;
    mutable FairMutex m_mutex; // Guards the members below.
    Answers m_answers;
    sockaddr_in m_sender{};
    std::uint16_t m_lastRequest = 0;
    int m_commands = 0;
    int m_searches = 0; // Commands with another request ID than the previous command.
    std::condition_variable_any m_commandArrived;

    std::thread m_thread; // Declared last, because the thread uses all members above.
};
