#pragma once

#include "sdk/process/Timing.h"
#include "sdk/protocol/LineChannel.h"
#include "sdk/protocol/Message.h"
#include "sdk/protocol/Problem.h"

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// Sends requests to one producer host, one at a time, checks the replies, and monitors their deadlines.
/// Does not depend on the content of the requests.
class ProducerClient
{
public:
    /// A reply is late after `searchTimeout` and expired after `replyTimeout`.
    ProducerClient(Milliseconds searchTimeout, Milliseconds replyTimeout);

    void connect(LineChannel channel);
    void disconnect();

    /// Returns the descriptor to poll for reading, or -1 if there is no connection.
    int descriptor() const { return m_channel.descriptor(); }

    template <typename Request>
    void send(const Request &request, TimePoint now)
    {
        sendMessage(Message(++m_lastId, request), now);
    }

    /// Sends the final request. The reply to an earlier request may still arrive before the final reply.
    template <typename Request>
    void sendLast(const Request &request)
    {
        m_channel.trySend(Message(++m_lastId, request).toLine());
    }

    /// Returns true while the reply to a request is outstanding.
    bool isWaiting() const { return m_awaitedId.has_value(); }

    bool isLate(TimePoint now) const { return isWaiting() && waitingTime(now) >= m_searchTimeout; }
    bool isExpired(TimePoint now) const { return isWaiting() && waitingTime(now) >= m_replyTimeout; }

    /// Returns the next time at which isLate() or isExpired() changes, or TimePoint::max() if no reply is
    /// outstanding.
    TimePoint nextDeadline(TimePoint now) const;

    /// Returns the time since the last request was sent. The result is also valid right after the reply has
    /// arrived.
    Milliseconds waitingTime(TimePoint now) const;

    /// Returns true if a reply that arrives now is not late.
    bool isInTime(TimePoint now) const { return waitingTime(now) < m_searchTimeout; }

    struct Nothing
    { };
    struct Disconnected
    { };
    struct ProtocolError ///< The host does not follow the protocol.
    {
        std::string reason;
    };
    struct ProducerFailure ///< The producer cannot be used; the host exits by itself.
    {
        Problem problem;
    };
    using Received = std::variant<Nothing, Message, Disconnected, ProtocolError, ProducerFailure>;

    /// Reads the received messages without blocking. Returns a Message only if it is the reply to the
    /// outstanding request.
    Received receive();

    /// Returns true if the host has reported a changed list since the last call.
    bool takeListChange() { return std::exchange(m_isListChanged, false); }

    /// Moves the deadlines of the outstanding request, because this process could not receive the reply.
    void extendDeadlines(Milliseconds time) { m_sentAt += time; }

    /// Reads the last messages of a host that was asked to close, and appends their problems. Returns false
    /// if no further message is expected.
    bool receiveLast(std::vector<Problem> &problems);

private:
    void sendMessage(const Message &message, TimePoint now);
    Received check(const std::string &line);

    Milliseconds m_searchTimeout;
    Milliseconds m_replyTimeout;
    LineChannel m_channel;
    Message::Id m_lastId = Message::noRequest;
    std::optional<Message::Id> m_awaitedId;
    TimePoint m_sentAt{};
    bool m_isListChanged = false;
};
