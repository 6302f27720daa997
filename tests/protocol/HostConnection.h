#pragma once

#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// Starts a producer host and owns the library's end of its socket. The destructor kills the host.
class HostConnection
{
public:
    explicit HostConnection(const std::vector<std::string> &arguments);
    ~HostConnection();
    HostConnection(const HostConnection &) = delete;
    HostConnection &operator=(const HostConnection &) = delete;

    void send(const std::string &text) { m_channel.send(text); }

    /// Blocks until the next reply has arrived. Returns nothing if the connection ends instead.
    std::optional<Message> receive();

    /// Sends a request and returns the content of the reply. Returns nothing if the reply has another ID or
    /// type.
    template <typename Reply, typename Request>
    std::optional<Reply> ask(const Request &request)
    {
        send(Message(++m_lastId, request).toLine());
        const auto reply = receive();
        if (!reply || reply->id() != m_lastId)
            return std::nullopt;
        return reply->content<Reply>();
    }

    void close() { m_channel.close(); }

    /// Blocks until the host has ended. Returns its exit status, or -1 if a signal has ended the host.
    int exitStatus();

private:
    LineChannel m_channel;
    pid_t m_process = -1;
    Message::Id m_lastId = Message::noRequest;
};
