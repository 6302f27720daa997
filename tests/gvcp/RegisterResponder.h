#pragma once

#include <arpa/inet.h>
#include <chrono>
#include <cstring>
#include <functional>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

/// Answers register commands as a camera at 127.0.0.1 would. Runs in the test's own network namespace.
class RegisterResponder
{
public:
    using Bytes = std::vector<std::uint8_t>;

    using Send = std::function<void(const Bytes &datagram)>;

    /// Answers a command.
    using Answer = std::function<void(const Bytes &command, const Send &send)>;

    explicit RegisterResponder(Answer answer)
        : m_answer(std::move(answer)), m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in own{};
        own.sin_family = AF_INET;
        own.sin_port = htons(3956);
        own.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (m_socket < 0 || bind(m_socket, reinterpret_cast<const sockaddr *>(&own), sizeof own) != 0)
            throw std::runtime_error("The port of the cameras is not free.");
        m_thread = std::thread([this] { run(); });
    }
    ~RegisterResponder()
    {
        shutdown(m_socket, SHUT_RDWR); // Ends the thread's recvfrom().
        m_thread.join();
        close(m_socket);
    }
    RegisterResponder(const RegisterResponder &) = delete;
    RegisterResponder &operator=(const RegisterResponder &) = delete;

    /// Returns true if another command arrives before the timeout has passed. Called by the function that
    /// answers.
    bool hasCommandWithin(std::chrono::milliseconds timeout) const
    {
        pollfd waiting{m_socket, POLLIN, 0};
        return poll(&waiting, 1, static_cast<int>(timeout.count())) != 0;
    }

    /// Returns the answer to a command: its code is that of the command plus 1.
    static Bytes answerTo(const Bytes &command, std::uint16_t status, const Bytes &data)
    {
        return datagram(status, static_cast<std::uint16_t>((command[2] << 8 | command[3]) + 1),
            static_cast<std::uint16_t>(command[6] << 8 | command[7]), data);
    }

    static Bytes datagram(
        std::uint16_t status, std::uint16_t code, std::uint16_t requestId, const Bytes &data)
    {
        Bytes bytes;
        for (const std::size_t number :
            {std::size_t{status}, std::size_t{code}, data.size(), std::size_t{requestId}}) {
            bytes.push_back(static_cast<std::uint8_t>(number >> 8));
            bytes.push_back(static_cast<std::uint8_t>(number));
        }
        bytes.insert(bytes.end(), data.begin(), data.end());
        return bytes;
    }

private:
    void run()
    {
        for (;;) {
            Bytes command(1024);
            sockaddr_in sender{};
            socklen_t senderSize = sizeof sender;
            auto *const address = reinterpret_cast<sockaddr *>(&sender);
            const ssize_t size = recvfrom(m_socket, command.data(), command.size(), 0, address, &senderSize);
            if (size < 8)
                return;
            command.resize(static_cast<std::size_t>(size));
            m_answer(command, [&](const Bytes &bytes) {
                sendto(m_socket, bytes.data(), bytes.size(), 0, address, senderSize);
            });
        }
    }

    const Answer m_answer;
    const int m_socket;
    std::thread m_thread; // Declared last, because the thread uses all members above.
};
