#include "sdk/protocol/LineChannel.h"
#include "tests/protocol/WaitForLine.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace {

using Status = LineChannel::Status;

class LineChannelTest : public testing::Test
{
protected:
    LineChannelTest()
    {
        std::array<int, 2> ends{};
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
        m_near = LineChannel(ends[0], maxLength);
        m_far = LineChannel(ends[1]);
    }

    static constexpr std::size_t maxLength = 1000;
    LineChannel m_near;
    LineChannel m_far;
    std::string m_line;
};

} // namespace

TEST_F(LineChannelTest, receivedTextIsSplitIntoLines)
{
    EXPECT_EQ(m_far.send("one\n\nthree\nfo"), Status::Line);
    for (const char *line : {"one", "", "three"}) {
        EXPECT_EQ(m_near.tryReadLine(m_line), Status::Line);
        EXPECT_EQ(m_line, line);
        EXPECT_TRUE(m_near.hasMore());
    }
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Pending);
    m_far.trySend("ur\n");
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Line);
    EXPECT_EQ(m_line, "four");
    EXPECT_FALSE(m_near.hasMore());
}

TEST_F(LineChannelTest, lineThatExceedsTheSocketBufferIsSentWhileItIsRead)
{
    const std::string sent(5U << 20, 'x'); // The text is larger than the socket's buffer.
    std::thread sender([&] { EXPECT_EQ(m_near.send(sent + "\n"), Status::Line); });
    EXPECT_EQ(waitForLine(m_far, m_line), Status::Line);
    sender.join();
    EXPECT_EQ(m_line, sent);
}

TEST_F(LineChannelTest, sendingEndsAtTheDeadlineIfNobodyReads)
{
    using Clock = std::chrono::steady_clock;
    const std::string sent(5U << 20, 'x');
    EXPECT_EQ(m_near.sendUntil(Clock::now() + std::chrono::milliseconds(20), sent), Status::Pending);
    std::thread reader([this] { EXPECT_EQ(waitForLine(m_far, m_line), Status::Line); });
    EXPECT_EQ(m_near.sendUntil(Clock::now() + std::chrono::minutes(1), sent + '\n'), Status::Line);
    reader.join();
    EXPECT_GT(m_line.size(), sent.size());
}

TEST_F(LineChannelTest, acceptsALineOfMaximumLength)
{
    m_far.send(std::string(maxLength, 'x'));
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Pending);
    m_far.send("\n");
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Line);
    EXPECT_EQ(m_line.size(), maxLength);
}

TEST_F(LineChannelTest, refusesALineOverTheMaximumLength)
{
    m_far.send(std::string(maxLength + 1, 'x'));
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::TooLong);
}

TEST_F(LineChannelTest, lastCompleteLineIsReturnedBeforeTheEnd)
{
    m_far.send("last\nrest");
    m_far.close();
    EXPECT_EQ(waitForLine(m_near, m_line), Status::Line);
    EXPECT_EQ(waitForLine(m_near, m_line), Status::Closed);
    EXPECT_EQ(m_near.send("x\n"), Status::Closed);
    m_near.trySend("x\n"); // This call must not raise SIGPIPE.
}

TEST_F(LineChannelTest, closedChannelIsEmpty)
{
    m_far.send("one\ntwo\n");
    m_near.tryReadLine(m_line);
    m_near.close();
    EXPECT_EQ(m_near.descriptor(), -1);
    EXPECT_FALSE(m_near.hasMore());
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Closed);
    EXPECT_EQ(waitForLine(m_far, m_line), Status::Closed);
}

TEST_F(LineChannelTest, moveKeepsUnreadLines)
{
    m_far.send("one\ntwo\n");
    m_near.tryReadLine(m_line);
    LineChannel moved = std::move(m_near);
    EXPECT_EQ(moved.tryReadLine(m_line), Status::Line);
    EXPECT_EQ(m_line, "two");
}

TEST_F(LineChannelTest, channelIsLostIfOtherCodeClosesItsDescriptor)
{
    const int descriptor = m_near.descriptor();
    const int file = open("/dev/null", O_RDWR | O_CLOEXEC);
    dup2(file, descriptor);
    EXPECT_EQ(waitForLine(m_near, m_line), Status::Lost);
    EXPECT_EQ(m_near.send("x\n"), Status::Lost);
    close(descriptor);
    EXPECT_EQ(waitForLine(m_near, m_line), Status::Lost);
    EXPECT_EQ(m_near.send("x\n"), Status::Lost);
    dup2(file, descriptor); // The destructor closes this descriptor.
    close(file);
}

TEST_F(LineChannelTest, descriptorsArriveWithTheirLine)
{
    m_near.acceptDescriptors();
    std::array<int, 2> pipe{};
    ASSERT_EQ(pipe2(pipe.data(), O_CLOEXEC), 0);
    EXPECT_EQ(m_far.send("two\n", {pipe[0], pipe[1]}), Status::Line);
    close(pipe[0]);
    close(pipe[1]);
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Line);
    EXPECT_EQ(m_line, "two");
    const auto descriptors = m_near.takeDescriptors();
    ASSERT_EQ(descriptors.size(), 2U);
    EXPECT_EQ(write(descriptors[1], "x", 1), 1);
    char byte = 0;
    EXPECT_EQ(read(descriptors[0], &byte, 1), 1);
    EXPECT_EQ(fcntl(descriptors[0], F_GETFD), FD_CLOEXEC);
    EXPECT_TRUE(m_near.takeDescriptors().empty());
    close(descriptors[0]);
    close(descriptors[1]);
}

TEST_F(LineChannelTest, descriptorsThatNobodyTakesAreClosed)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK), 0);
    m_far.send("refused\n", {pipe[1]}); // The channel does not accept descriptors.
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Line);
    m_near.acceptDescriptors();
    m_far.send("accepted\n", {pipe[1]});
    EXPECT_EQ(m_near.tryReadLine(m_line), Status::Line);
    close(pipe[1]);
    char byte = 0;
    EXPECT_EQ(read(pipe[0], &byte, 1), -1) << "the descriptor is still open";
    m_near.close();
    EXPECT_EQ(read(pipe[0], &byte, 1), 0) << "nobody can write any more";
    close(pipe[0]);
}
