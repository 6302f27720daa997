#include "sdk/cvxcpp/ProducerClient.h"

#include "sdk/protocol/DiscoveryMessages.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int maxLastMessages = 4; // Allows for an outstanding reply, failure messages and the final reply.

/// Returns the problems that the message reports, whatever its kind is.
std::vector<Problem> problemsOf(const Message &message)
{
    if (const auto cameras = message.content<CameraListReply>())
        return cameras->problems;
    if (const auto closed = message.content<ProducerClosedReply>())
        return closed->problems;
    if (const auto failed = message.content<ProducerFailedReply>())
        return {failed->problem};
    return {};
}

} // namespace

ProducerClient::ProducerClient(Milliseconds searchTimeout, Milliseconds replyTimeout)
    : m_searchTimeout(searchTimeout), m_replyTimeout(replyTimeout)
{ }

void ProducerClient::connect(LineChannel channel)
{
    m_channel = std::move(channel);
    m_awaitedId.reset();
    m_isListChanged = false;
}

void ProducerClient::disconnect()
{
    m_channel.close();
    m_awaitedId.reset();
}

void ProducerClient::sendMessage(const Message &message, TimePoint now)
{
    m_awaitedId = message.id();
    m_sentAt = now;
    // The socket can take the request, because requests are short and are sent one at a time.
    m_channel.trySend(message.toLine());
}

TimePoint ProducerClient::nextDeadline(TimePoint now) const
{
    if (!isWaiting())
        return TimePoint::max();
    const TimePoint expiry = m_sentAt + m_replyTimeout;
    return isLate(now) ? expiry : std::min(expiry, m_sentAt + m_searchTimeout);
}

Milliseconds ProducerClient::waitingTime(TimePoint now) const
{
    return std::chrono::duration_cast<Milliseconds>(now - m_sentAt);
}

ProducerClient::Received ProducerClient::receive()
{
    Received received = Nothing();
    std::string line;
    for (;;) {
        switch (m_channel.tryReadLine(line)) {
        case LineChannel::Status::Line:
            break;
        case LineChannel::Status::Pending:
            return received;
        case LineChannel::Status::TooLong:
            return ProtocolError{"sent a reply that is too long"};
        case LineChannel::Status::Closed:
        case LineChannel::Status::Lost: // A reply before the end is valid; the next call reports the end.
            return std::holds_alternative<Message>(received) ? received : Disconnected();
        }
        auto checked = check(line);
        if (std::holds_alternative<Nothing>(checked))
            continue;
        received = std::move(checked);
        if (!std::holds_alternative<Message>(received))
            return received;
    }
}

ProducerClient::Received ProducerClient::check(const std::string &line)
{
    auto message = Message::fromLine(line);
    if (!message)
        return ProtocolError{"sent a reply that cannot be read"};
    // A thread of the producer may fail at any time, so a failure message may arrive without a request.
    if (auto failed = message->content<ProducerFailedReply>())
        return ProducerFailure{std::move(failed->problem)};
    if (message->content<ListChangedNotice>()) {
        m_isListChanged = true;
        return Nothing();
    }
    if (message->id() != m_awaitedId)
        return ProtocolError{"sent a reply that was not requested"};
    m_awaitedId.reset();
    return std::move(*message);
}

bool ProducerClient::receiveLast(std::vector<Problem> &problems)
{
    std::string line;
    for (int i = 0; i < maxLastMessages; ++i) {
        const auto status = m_channel.tryReadLine(line);
        if (status != LineChannel::Status::Line)
            return status == LineChannel::Status::Pending;
        if (const auto message = Message::fromLine(line)) {
            const auto more = problemsOf(*message);
            problems.insert(problems.end(), more.begin(), more.end());
        }
    }
    return false;
}
