// Reads the replies of a producer host as the library does. The first byte of the input determines into how
// many portions the rest is split.

#include "sdk/protocol/DiscoveryMessages.h"
#include "sdk/protocol/LineChannel.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/RoundTrip.h"

#include <algorithm>
#include <array>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t maxLength = 4096; // In bytes; the inputs of a fuzzer are too short for the real limit.

/// Appends every line that has arrived to `received`; returns false if no further line can arrive.
bool collect(LineChannel &channel, std::vector<std::string> &received)
{
    std::string line;
    for (;;) {
        switch (channel.tryReadLine(line)) {
        case LineChannel::Status::Line:
            received.push_back(line);
            break;
        case LineChannel::Status::Pending:
            return true;
        case LineChannel::Status::TooLong:
            require(channel.hasMore(), "a line is too long only if bytes have arrived");
            return false;
        case LineChannel::Status::Closed:
        case LineChannel::Status::Lost:
            return false;
        }
    }
}

/// Sends the text in portions of this size; returns the lines that the other end receives.
std::vector<std::string> transmit(const std::string &text, std::size_t portion)
{
    std::array<int, 2> ends{};
    require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0, "a socket can be created");
    LineChannel host(ends[0]);
    LineChannel library(ends[1], maxLength);
    std::vector<std::string> received;
    for (std::size_t at = 0; at < text.size(); at += portion) {
        require(host.send(text.substr(at, portion)) == LineChannel::Status::Line, "the text is sent");
        if (!collect(library, received))
            return received;
    }
    host.close();
    require(!collect(library, received), "the end of the connection is detected");
    return received;
}

/// Returns the complete lines of a text, without their line feeds.
std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string sent = textOf(data + 1, size - 1);
    const std::vector<std::string> received = transmit(sent, sent.size() / (1U + data[0] % 8U) + 1);
    const std::vector<std::string> lines = linesOf(sent);
    require(received.size() <= lines.size() && std::equal(received.begin(), received.end(), lines.begin()),
        "the received lines are those of the text, in order");
    for (const std::string &line : received) {
        if (const std::optional<Message> message = Message::fromLine(line)) {
            requireSameAfterRoundTrip<CameraListReply>(*message);
            requireSameAfterRoundTrip<ProducerFailedReply>(*message);
            requireSameAfterRoundTrip<ProducerClosedReply>(*message);
        }
    }
    return 0;
}
