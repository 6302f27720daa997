#include "sdk/cvxcpp/ProducerClient.h"
#include "sdk/protocol/DiscoveryMessages.h"

#include <array>
#include <gtest/gtest.h>
#include <sys/socket.h>

using namespace std::chrono_literals;

namespace {

constexpr TimePoint begin{100s};
constexpr std::size_t maxLength = 500; // Limit of a line, in bytes.

} // namespace

/// Connects a client to a socket. The test acts as the host at the other end.
class ProducerClientTest : public testing::Test
{
protected:
    ProducerClientTest() { connect(); }

    void connect()
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
        client = ProducerClient(3s, 10s);
        client.connect(LineChannel(ends[0], maxLength));
        host = LineChannel(ends[1]);
    }

    /// Returns the reason of a protocol error, or the call that failed in the producer, or the kind of what
    /// was received.
    std::string received()
    {
        const auto result = client.receive();
        if (const auto *error = std::get_if<ProducerClient::ProtocolError>(&result))
            return error->reason;
        if (const auto *failure = std::get_if<ProducerClient::ProducerFailure>(&result))
            return failure->problem.call;
        if (std::holds_alternative<ProducerClient::Disconnected>(result))
            return "disconnected";
        return std::holds_alternative<Message>(result) ? "reply" : "nothing";
    }

    static std::string replyTo(Message::Id id) { return Message(id, CameraListReply()).toLine(); }

    ProducerClient client{3s, 10s};
    LineChannel host;
};

TEST_F(ProducerClientTest, acceptsTheReplyToItsRequest)
{
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(client.isWaiting());
        client.send(ListInterfaceRequest{7, 200}, begin);
        EXPECT_TRUE(client.isWaiting());
        EXPECT_EQ(received(), "nothing");
        std::string line;
        ASSERT_EQ(host.tryReadLine(line), LineChannel::Status::Line);
        const auto request = Message::fromLine(line);
        ASSERT_TRUE(request && request->content<ListInterfaceRequest>());
        EXPECT_EQ(request->content<ListInterfaceRequest>()->number, 7U);
        host.send(replyTo(request->id()));
        EXPECT_EQ(received(), "reply");
    }
    EXPECT_FALSE(client.isWaiting());
}

TEST_F(ProducerClientTest, refusesUnreadableAndUnrequestedReplies)
{
    const std::string failure = Message(Message::noRequest, ProducerFailedReply{{"TLOpen", -1, ""}}).toLine();
    const struct
    {
        const char *name;
        std::string sent, result;
    } rows[] = {
        {"garbage", "garbage\n", "sent a reply that cannot be read"},
        {"bytes", "\xFF\xFE\n", "sent a reply that cannot be read"},
        {"wrong ID", replyTo(2), "sent a reply that was not requested"},
        {"two replies", replyTo(1) + replyTo(1), "sent a reply that was not requested"},
        {"no line feed", std::string(maxLength + 1, ' '), "sent a reply that is too long"},
        {"failure", failure, "TLOpen"},
        {"failure after the reply", replyTo(1) + failure, "TLOpen"},
    };
    for (const auto &row : rows) {
        connect();
        client.send(ListCamerasRequest(), begin);
        host.send(row.sent);
        EXPECT_EQ(received(), row.result) << row.name;
    }
    connect();
    host.send(replyTo(Message::noRequest));
    EXPECT_EQ(received(), "sent a reply that was not requested");
}

TEST_F(ProducerClientTest, replyIsReturnedBeforeTheDisconnection)
{
    client.send(ListCamerasRequest(), begin);
    host.send(replyTo(1));
    host.close();
    EXPECT_EQ(received(), "reply");
    EXPECT_EQ(received(), "disconnected");
    client.disconnect();
    EXPECT_EQ(client.descriptor(), -1);
    EXPECT_EQ(received(), "disconnected");
}

TEST_F(ProducerClientTest, unansweredRequestBecomesLateBeforeItExpires)
{
    EXPECT_EQ(client.nextDeadline(begin), TimePoint::max());
    EXPECT_FALSE(client.isLate(begin));
    EXPECT_FALSE(client.isExpired(begin));
    client.send(ListCamerasRequest(), begin);
    const struct
    {
        Milliseconds time;
        bool isLate, isExpired;
        Milliseconds next;
    } rows[] = {{0s, false, false, 3s}, {2999ms, false, false, 3s}, {3s, true, false, 10s},
        {9999ms, true, false, 10s}, {10s, true, true, 10s}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.time.count());
        EXPECT_EQ(client.isLate(begin + row.time), row.isLate);
        EXPECT_EQ(client.isInTime(begin + row.time), !row.isLate);
        EXPECT_EQ(client.isExpired(begin + row.time), row.isExpired);
        EXPECT_EQ(client.nextDeadline(begin + row.time), begin + row.next);
    }
    client.disconnect();
    EXPECT_FALSE(client.isLate(begin + 10s));
    EXPECT_EQ(client.waitingTime(begin + 10s), 10s);
}

TEST_F(ProducerClientTest, receiveLastCollectsTheProblemsOfAllMessages)
{
    client.send(ListCamerasRequest(), begin);
    client.sendLast(CloseProducerRequest());
    EXPECT_TRUE(client.isWaiting());
    host.send(Message(1, CameraListReply{{}, {{"IFGetDeviceID", 0, ""}}, 0, false}).toLine() + "garbage\n"
        + Message(2, ProducerClosedReply{{{"TLClose", 0, ""}}}).toLine());
    std::vector<Problem> problems;
    EXPECT_TRUE(client.receiveLast(problems));
    host.send(Message(0, ProducerFailedReply{{"the producer", 0, ""}}).toLine());
    host.close();
    EXPECT_FALSE(client.receiveLast(problems));
    ASSERT_EQ(problems.size(), 3U);
    EXPECT_EQ(problems[0].call, "IFGetDeviceID");
    EXPECT_EQ(problems[1].call, "TLClose");
    EXPECT_EQ(problems[2].call, "the producer");
    connect();
    for (int i = 0; i < 10; ++i)
        host.send(replyTo(1));
    EXPECT_FALSE(client.receiveLast(problems)) << "a host that keeps sending is not read for ever";
}
