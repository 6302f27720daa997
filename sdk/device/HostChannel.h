#pragma once

#include "sdk/process/Timing.h"
#include "sdk/protocol/DeviceMessages.h"
#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// Why a host cannot be used any more.
struct Breakdown
{
    enum class Kind
    {
        Timeout, ///< The host has not answered in time.
        Ended, ///< The connection has ended; the exit status of the host contains the reason.
        Protocol, ///< The host does not follow the protocol or has damaged the shared memory.
        CameraLost ///< The host reports that the camera is gone.
    };

    Kind kind = Kind::Ended;
    std::string reason; ///< A sentence for people.
};

/// Returns the breakdown of a host that has not answered in time.
Breakdown lateReply();

/// Sends requests to a camera host, one at a time, and receives the replies and notices. Use a channel on one
/// thread at a time; only abort() may be called while another thread uses the channel.
class HostChannel
{
public:
    using NodesChanged = std::function<void(std::vector<std::string> names)>;

    HostChannel(LineChannel channel, NodesChanged nodesChanged);

    template <typename Reply>
    using Answer = std::variant<Reply, RequestFailedReply, Breakdown>;

    /// Sends a request, with descriptors if there are any, and waits for the reply.
    template <typename Reply, typename Request>
    Answer<Reply> ask(const Request &request, TimePoint deadline, const std::vector<int> &descriptors = {})
    {
        const auto answer = exchange(Message(++m_lastId, request), deadline, descriptors);
        if (const auto *breakdown = std::get_if<Breakdown>(&answer))
            return *breakdown;
        const auto &message = std::get<Message>(answer);
        if (auto reply = message.content<Reply>())
            return std::move(*reply);
        if (auto failed = message.content<RequestFailedReply>())
            return std::move(*failed);
        return unreadable();
    }

    /// Processes the notices that have arrived. Does not block.
    std::optional<Breakdown> readNotices();

    /// Returns the descriptor to poll for notices.
    int descriptor() const { return m_channel.descriptor(); }

    /// Ends the connection: a waiting ask() returns at once. Any thread may call this function.
    void abort() const;

private:
    struct Nothing ///< The rest of the line has not arrived yet.
    { };
    struct Notice ///< A notice was received and processed.
    { };
    using Received = std::variant<Nothing, Notice, Message, Breakdown>;

    std::variant<Message, Breakdown> exchange(
        const Message &request, TimePoint deadline, const std::vector<int> &descriptors);
    bool send(const std::string &line, TimePoint deadline, const std::vector<int> &descriptors);
    Received receive();
    Received check(const std::string &line);
    static Breakdown unreadable();

    LineChannel m_channel;
    const NodesChanged m_nodesChanged;
    std::string m_line; // Keeps its memory between the messages.
    Message::Id m_lastId = Message::noRequest;
};
