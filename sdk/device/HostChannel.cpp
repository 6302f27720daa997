#include "sdk/device/HostChannel.h"

#include "sdk/protocol/DiscoveryMessages.h"

#include <algorithm>
#include <poll.h>
#include <sys/socket.h>
#include <utility>

namespace {

/// Waits until the descriptor is readable. Returns false at the deadline.
bool waitReadable(int descriptor, TimePoint deadline)
{
    for (;;) {
        const auto remaining = std::chrono::ceil<Milliseconds>(deadline - SteadyClock::now());
        pollfd poll{descriptor, POLLIN, 0};
        const int count
            = ::poll(&poll, 1, static_cast<int>(std::max<Milliseconds::rep>(remaining.count(), 0)));
        if (count > 0)
            return true;
        if (count == 0 && SteadyClock::now() >= deadline)
            return false;
    }
}

// Every write causes one notice. A host that sends notices without end must not block the caller.
constexpr int maxNotices = 1000;

Breakdown ended()
{
    return {Breakdown::Kind::Ended, "The process of the camera has ended."};
}

} // namespace

Breakdown lateReply()
{
    return {Breakdown::Kind::Timeout, "The camera has not answered in time."};
}

HostChannel::HostChannel(LineChannel channel, NodesChanged nodesChanged)
    : m_channel(std::move(channel)), m_nodesChanged(std::move(nodesChanged))
{ }

void HostChannel::abort() const
{
    shutdown(m_channel.descriptor(), SHUT_RDWR);
}

std::variant<Message, Breakdown> HostChannel::exchange(
    const Message &request, TimePoint deadline, const std::vector<int> &descriptors)
{
    if (!send(request.toLine(), deadline, descriptors))
        return SteadyClock::now() < deadline ? ended() : lateReply();
    bool isReadable = waitReadable(descriptor(), deadline);
    for (int notices = 0; notices < maxNotices;) {
        Received received = receive();
        if (auto *reply = std::get_if<Message>(&received)) {
            if (reply->id() != request.id())
                return unreadable();
            return std::move(*reply);
        }
        if (auto *breakdown = std::get_if<Breakdown>(&received))
            return std::move(*breakdown);
        if (std::holds_alternative<Notice>(received)) {
            ++notices;
            continue;
        }
        if (!isReadable)
            return lateReply();
        isReadable = waitReadable(descriptor(), deadline);
    }
    return unreadable();
}

bool HostChannel::send(const std::string &line, TimePoint deadline, const std::vector<int> &descriptors)
{
    // A request with descriptors always fits into the socket's buffer.
    const auto status
        = descriptors.empty() ? m_channel.sendUntil(deadline, line) : m_channel.send(line, descriptors);
    return status == LineChannel::Status::Line;
}

std::optional<Breakdown> HostChannel::readNotices()
{
    for (int notices = 0; notices < maxNotices; ++notices) {
        const Received received = receive();
        if (std::holds_alternative<Nothing>(received))
            return std::nullopt;
        if (const auto *breakdown = std::get_if<Breakdown>(&received))
            return *breakdown;
        if (std::holds_alternative<Message>(received)) // There is no request to which it could reply.
            return unreadable();
    }
    return std::nullopt;
}

/// Reads the next message without blocking.
HostChannel::Received HostChannel::receive()
{
    switch (m_channel.tryReadLine(m_line)) {
    case LineChannel::Status::Line:
        return check(m_line);
    case LineChannel::Status::Pending:
        return Nothing();
    case LineChannel::Status::TooLong:
        return unreadable();
    case LineChannel::Status::Closed:
    case LineChannel::Status::Lost:
        break;
    }
    return ended();
}

HostChannel::Received HostChannel::check(const std::string &line)
{
    auto message = Message::fromLine(line);
    if (!message)
        return unreadable();
    if (message->id() != Message::noRequest)
        return std::move(*message);
    if (auto changed = message->content<NodesChangedNotice>()) {
        m_nodesChanged(std::move(changed->names));
        return Notice();
    }
    if (auto lost = message->content<DeviceLostNotice>())
        return Breakdown{Breakdown::Kind::CameraLost, std::move(lost->reason)};
    if (const auto failed = message->content<ProducerFailedReply>()) // A thread of the producer has failed.
        return Breakdown{Breakdown::Kind::CameraLost,
            "The process of the camera ended: " + failed->problem.call + ' ' + failed->problem.text + '.'};
    return unreadable();
}

Breakdown HostChannel::unreadable()
{
    return {Breakdown::Kind::Protocol, "The process of the camera has sent a message that cannot be read."};
}
