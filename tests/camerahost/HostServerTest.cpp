// Tests what a camera host does beyond the calls of its producer: its messages, and its policies for images.

#include "tests/camerahost/QuirkSession.h"
#include "tests/protocol/WaitForLine.h"
#include "tests/sdk/support/Waiting.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace CvxCPP;
using Strings = std::vector<std::string>;

namespace {

/// A host whose messages the test reads one by one.
class HostServer : public testing::Test
{
protected:
    HostServer() : m_channel(m_process.start(CVX_CAMERA_HOST, producer.ctiPath()).channel) { }
    ~HostServer() override
    {
        m_process.kill();
        EXPECT_TRUE(waitForEnd());
    }

    template <typename Request>
    void send(const Request &request)
    {
        m_channel.send(Message(++m_lastId, request).toLine());
    }

    /// Returns the content of the next message.
    template <typename Content>
    std::optional<Content> receive()
    {
        std::string line;
        if (waitForLine(m_channel, line) != LineChannel::Status::Line)
            return std::nullopt;
        const auto message = Message::fromLine(line);
        return message ? message->content<Content>() : std::nullopt;
    }

    void open()
    {
        send(OpenDeviceRequest{"net0", "A1", CvxAccessControl});
        ASSERT_TRUE(receive<DeviceOpenedReply>());
        send(ReadStatesRequest()); // Its reply follows when the host has begun to check the camera.
        ASSERT_TRUE(receive<NodeStatesReply>());
    }

    bool waitForEnd()
    {
        return waitUntil([this] { return !m_process.isStarted() || m_process.tryReap().has_value(); });
    }

    QuirkProducer producer;
    HostProcess m_process;
    LineChannel m_channel;
    Message::Id m_lastId = Message::noRequest;
};

} // namespace

TEST_F(HostServer, writtenNodeAndItsDependentsAreReportedAfterTheReply)
{
    open();
    send(WriteValueRequest{"TLParamsLocked", std::int64_t(1)});
    EXPECT_TRUE(receive<NodeValueReply>());
    const auto changed = receive<NodesChangedNotice>();
    ASSERT_TRUE(changed && !changed->names.empty());
    EXPECT_EQ(changed->names.front(), "TLParamsLocked");
    EXPECT_EQ(std::count(changed->names.begin(), changed->names.end(), "Width"), 1) << "is locked now";

    send(WriteValueRequest{"TLParamsLocked", std::int64_t(-1)});
    EXPECT_TRUE(receive<RequestFailedReply>());
    send(ReadValueRequest{"TLParamsLocked"}); // Its reply follows at once: nothing was changed.
    EXPECT_EQ(receive<NodeValueReply>()->value, NodeValue(std::int64_t(1)));
}

TEST_F(HostServer, statesOfUnknownNodesAreLeftOut)
{
    open();
    send(ReadStatesRequest{{"Height", "Nothing", "Width"}});
    const auto reply = receive<NodeStatesReply>();
    ASSERT_TRUE(reply);
    ASSERT_EQ(reply->states.size(), 2U);
    EXPECT_EQ(reply->states[0].name, "Height");
    EXPECT_EQ(reply->states[1].name, "Width");
}

TEST_F(HostServer, invalidRequestEndsTheHost)
{
    open();
    m_channel.send("{\"id\": 2, \"kind\": \"sing\", \"body\": {}}\n");
    EXPECT_TRUE(waitForEnd());
    EXPECT_EQ(producer.count("closed A1"), 1U);
}

TEST_F(HostServer, streamWithoutMemoryIsUndone)
{
    open();
    for (int attempt = 0; attempt < 2; ++attempt) {
        send(PrepareStreamRequest{4});
        ASSERT_TRUE(receive<StreamPreparedReply>());
        send(StartStreamRequest{4, 4096, false}); // The descriptors are missing.
        EXPECT_TRUE(receive<RequestFailedReply>());
    }
    send(StartStreamRequest{4, 4096, false});
    EXPECT_EQ(receive<RequestFailedReply>()->failure, DeviceFailure::InvalidParameter) << "not prepared";
    send(StopStreamRequest());
    EXPECT_TRUE(receive<StreamStoppedReply>()) << "also if there is no stream";
    EXPECT_EQ(producer.count("DSClose"), 2U);
}

TEST_F(HostServer, lossIsReportedOnce)
{
    open();
    producer.setScript("gone A1\n");
    EXPECT_TRUE(receive<DeviceLostNotice>());
    send(ReadStatesRequest());
    EXPECT_TRUE(receive<NodeStatesReply>());
    send(CloseDeviceRequest());
    EXPECT_TRUE(receive<DeviceClosedReply>());
}

TEST_F(HostServer, cameraIsLostIfAnotherProgramTakesItsControl)
{
    open();
    producer.setScript(rule("DevGetInfo", GenTL::DEVICE_INFO_ACCESS_STATUS, "value 3"));
    EXPECT_TRUE(receive<DeviceLostNotice>());
}

TEST(HostAccess, watchingNeverTakesControl)
{
    for (const char *script :
        {"IFOpenDevice:READONLY error -1003\n", "IFOpenDevice:READONLY error -1009\n"}) {
        QuirkProducer producer(script);
        HostClient host(producer.ctiPath());
        EXPECT_FALSE(host.open(CvxAccessWatch));
        EXPECT_EQ(host.failure.failure, DeviceFailure::NotAvailable) << host.failure.text;
        EXPECT_NE(host.failure.text.find("watching only"), std::string::npos) << host.failure.text;
        EXPECT_EQ(producer.count("IFOpenDevice"), 1U);
    }
}

TEST_F(HostServer, hangingCheckOfTheCameraEndsTheHost)
{
    open();
    producer.setScript("GCReadPort hang\n");
    EXPECT_TRUE(waitForEnd());
    EXPECT_EQ(producer.count("closed A1"), 1U);
}

TEST(HostStream, producerThatHangsOrOnlyFailsIsALoss)
{
    for (const char *script : {"EventGetData hang\n", "DSGetBufferInfo hang\n", "DSQueueBuffer hang\n",
             "EventGetData error -1010\n", "EventGetData error -1001\n"}) {
        SCOPED_TRACE(script);
        QuirkProducer producer;
        HostClient host(producer.ctiPath());
        ASSERT_TRUE(host.open() && host.prepareStream() && host.startStream() && host.nextImage());
        producer.setScript(script);
        while (host.nextImage(std::chrono::seconds(1))) { } // Releases all buffers.
        EXPECT_TRUE(host.waitForLoss());
    }
}

TEST(HostStream, noOtherCallIsMadeOnceTheStopOfTheCameraHangs)
{
    QuirkProducer producer;
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open() && host.prepareStream() && host.startStream() && host.nextImage());
    producer.setScript("GCWritePort:30 hang\n"); // AcquisitionStop.
    EXPECT_TRUE(host.stopStream());
    EXPECT_TRUE(host.waitForEnd());
    EXPECT_EQ(producer.count("DSStopAcquisition"), 0U);
    EXPECT_EQ(producer.count("closed A1"), 1U);
}

TEST(HostStream, cameraIsClosedWhenTheLibrarysProcessEndsAlthoughItsChildHasTheSocket)
{
    QuirkProducer producer;
    int childLives[2];
    ASSERT_EQ(pipe(childLives), 0);
    const pid_t library = fork();
    if (library == 0) {
        HostClient host(producer.ctiPath());
        const bool isStreaming = host.open() && host.prepareStream() && host.startStream();
        if (fork() == 0) {
            close(childLives[1]);
            char end = 0;
            _exit(static_cast<int>(read(childLives[0], &end, 1))); // Until the test closes the pipe.
        }
        _exit(isStreaming ? 0 : 1);
    }
    int status = -1;
    EXPECT_EQ(waitpid(library, &status, 0), library);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(waitUntil([&] { return producer.count("closed A1") == 1; }));
    EXPECT_EQ(producer.count("violation"), 0U) << testing::PrintToString(producer.log());
    close(childLives[0]);
    close(childLives[1]);
}

TEST(HostProgram, refusesToRunWithoutTheLibrary)
{
    const int status = std::system(CVX_CAMERA_HOST " /nothing.cti 3<&- 2>/dev/null");
    EXPECT_EQ(WEXITSTATUS(status), 64);
}

TEST(StreamPolicy, newestImageSkipsTheOlderOnesAndCountsThem)
{
    QuirkProducer producer("images 60\n");
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open() && host.prepareStream() && host.startStream(true)) << host.failure.text;
    const StreamRing::Counters &counters = host.ring().counters;
    // On a slow machine, the producer may find no free buffer for some images.
    EXPECT_TRUE(waitUntil([&] { return counters.delivered + counters.underruns == 60; }));
    EXPECT_TRUE(waitUntil([&] { return counters.skipped == counters.delivered - 1; }));
    const auto image = host.nextImage();
    ASSERT_TRUE(image);
    EXPECT_GE(image->record.frameId, 60U - counters.underruns);
    EXPECT_FALSE(host.ring().pop());
    EXPECT_LE(counters.lost, counters.underruns);
    EXPECT_EQ(counters.bytes, counters.delivered * 64U * 48U);
    EXPECT_TRUE(host.stopStream() && host.close());
}

TEST(StreamPolicy, timeOfReceptionIsOnTheMonotonicClock)
{
    const auto now = [] {
        const std::chrono::nanoseconds time = std::chrono::steady_clock::now().time_since_epoch();
        return static_cast<std::uint64_t>(time.count());
    };
    QuirkProducer producer;
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open() && host.prepareStream()) << host.failure.text;
    const std::uint64_t before = now();
    ASSERT_TRUE(host.startStream()) << host.failure.text;
    const auto first = host.nextImage();
    const auto second = host.nextImage();
    ASSERT_TRUE(first && second);
    EXPECT_LT(before, first->record.receivedAt);
    EXPECT_LT(first->record.receivedAt, second->record.receivedAt);
    EXPECT_LT(second->record.receivedAt, now());
    EXPECT_TRUE(host.stopStream() && host.close());
}

TEST(StreamPolicy, everyImageStaysUntilTheProgramTakesIt)
{
    QuirkProducer producer("images 60\n");
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open() && host.prepareStream(4) && host.startStream()) << host.failure.text;
    const StreamRing::Counters &counters = host.ring().counters;
    EXPECT_TRUE(waitUntil([&] { return counters.underruns == 56; })) << counters.underruns;
    EXPECT_EQ(counters.delivered, 4U);
    EXPECT_EQ(counters.skipped, 0U);
    for (std::uint64_t number = 1; number <= 4; ++number)
        EXPECT_EQ(host.nextImage()->record.frameId, number);
    EXPECT_TRUE(host.stopStream() && host.close());
}
