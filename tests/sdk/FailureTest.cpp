// Tests the camera system with producers and hosts that fail or are slow.

#include "sdk/protocol/DiscoveryMessages.h"
#include "sdk/protocol/Message.h"
#include "tests/sdk/support/SystemTest.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;
using Ids = std::vector<std::string>;

class FailureTest : public SystemTest
{
protected:
    pid_t hostOf(const std::string &producer)
    {
        const auto hosts = processesWith(ctiPath(producer + ".cti").string());
        return hosts.empty() ? -1 : hosts.front();
    }

    /// Replaces the host program by a shell script. Descriptor 3 of the script is the socket.
    void useHost(const std::string &script)
    {
        options.hostProgram = (directory.path() / "host").string();
        writeFile(options.hostProgram, "#!/bin/sh\n" + script + '\n');
        std::filesystem::permissions(options.hostProgram, std::filesystem::perms::owner_all);
    }
};

TEST_F(FailureTest, crashedHostIsRestarted)
{
    options.pollInterval = 1h; // The crash is noticed without a poll.
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    for (std::size_t crashes = 1; crashes <= 2; ++crashes) { // The producer works between the two crashes.
        ASSERT_TRUE(waitUntil([&] { return list().size() == 1; }));
        ASSERT_EQ(kill(hostOf("a"), SIGKILL), 0);
        EXPECT_TRUE(waitUntil([&] { return recorder->calls().size() == 2 * crashes; }));
        EXPECT_EQ(countReports("cti/a.cti: was ended by SIGKILL (Killed)"), crashes);
    }
    EXPECT_EQ(
        recorder->calls(), (Calls{"-a.cti/net0/A1", "+a.cti/net0/A1", "-a.cti/net0/A1", "+a.cti/net0/A1"}));
}

TEST_F(FailureTest, nextProducerTakesOverTheCamerasOfACrashedOne)
{
    options.searchTimeout = 1h; // The test would hang if a call waited for the crashed producer.
    options.pollInterval = 1h; // The first poll would notify the observers of the first list.
    options.firstRestartDelay = 1h;
    options.maxRestartDelay = 1h;
    addProducer("a", cameras(1));
    addProducer("b", cameras(1));
    start();
    const auto recorder = recordCameras();
    const auto update = feature(*interfaceOf(list(), 0), "DeviceUpdateList");
    EXPECT_EQ(listIds(), Ids{"a.cti/net0/A1"});
    ASSERT_EQ(kill(hostOf("a"), SIGKILL), 0);
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() == 2; }));
    EXPECT_EQ(recorder->calls(), (Calls{"-a.cti/net0/A1", "+b.cti/net0/A1"}));
    EXPECT_EQ(listIds(), Ids{"b.cti/net0/A1"});
    EXPECT_EQ(update->RunCommand(), CvxErrorTimeout) << "the producer of that interface is gone";
}

TEST_F(FailureTest, restartDelayGrowsWithRepeatedFailures)
{
    addProducer("a", "fault load exit 9\n");
    const TimePoint startedAt = SteadyClock::now();
    start();
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "load") >= 5; }));
    EXPECT_GE(SteadyClock::now() - startedAt, 750ms) << "50, 100, 200 and 400 ms";
    setScript("a", cameras(1));
    EXPECT_TRUE(waitUntil([&] { return list().size() == 1; })) << "a repaired producer works again";
    EXPECT_EQ(reports(), std::vector<std::string>{ctiPath("a.cti").string() + ": exited with code 9"});
}

TEST_F(FailureTest, hangingHostIsReportedOnce)
{
    options.searchTimeout = 100ms;
    options.replyTimeout = 300ms;
    options.closeTimeout = 100ms;
    addProducer("a", "fault load hang\n");
    start();
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "load") >= 3; }));
    stop(); // The third host is hanging now.
    ASSERT_EQ(reports().size(), 1U) << testing::PrintToString(reports());
    EXPECT_EQ(countReports("cti/a.cti: did not answer within 0.3 s and was killed"), 1U);
}

TEST_F(FailureTest, protocolErrorIsReported)
{
    options.pollInterval = 1h;
    std::string empty = Message(1, CameraListReply()).toLine();
    empty.pop_back(); // The line feed, which "echo" adds.
    const struct
    {
        const char *host, *reason;
    } rows[] = {
        {"read line <&3; echo 'no JSON' >&3; sleep 100", "sent a reply that cannot be read"},
        {"read line <&3; echo '{\"id\":1,\"kind\":\"door\",\"body\":{}}' >&3; sleep 100",
            "sent a reply that cannot be read"},
        {"read line <&3; printf '{\"id\":' >&3; exit 3", "exited with code 3"},
        {"exec 3>&-; sleep 100", "closed its connection and was killed"},
        {"read line <&3; echo '%s' >&3; sleep 0.2; echo '%s' >&3; sleep 100",
            "sent a reply that was not requested"},
    };
    options.maxRestartDelay = 1h;
    options.firstRestartDelay = 1h;
    writeFile(ctiPath("a.cti"), "");
    std::size_t count = 0;
    for (const auto &row : rows) {
        std::string script = row.host;
        for (auto at = script.find("%s"); at != std::string::npos; at = script.find("%s"))
            script.replace(at, 2, empty);
        useHost(script);
        start();
        EXPECT_TRUE(waitUntil([&] { return reports().size() == count + 1; }));
        stop();
        ASSERT_EQ(reports().size(), ++count) << testing::PrintToString(reports());
        EXPECT_EQ(reports().back(), ctiPath("a.cti").string() + ": " + row.reason);
    }
}

TEST_F(FailureTest, failedHostStartIsRepeated)
{
    useHost("exit 0");
    writeFile(options.hostProgram, "#!/nowhere/interpreter\n");
    std::filesystem::permissions(options.hostProgram, std::filesystem::perms::owner_all);
    for (int i = 0; i < 6; ++i) // More hosts than may start at the same time.
        addProducer(std::to_string(i), "interface n\ndevice n|1\n");
    start();
    EXPECT_TRUE(waitUntil([&] { return countReports(": cannot start " + options.hostProgram) == 6; }));
    std::filesystem::remove(options.hostProgram);
    std::filesystem::copy_file(CVX_PRODUCER_HOST, options.hostProgram);
    EXPECT_TRUE(waitUntil([&] { return list().size() == 6; }));
}

TEST_F(FailureTest, unresponsiveProducerDoesNotDelayTheNextList)
{
    options.pollInterval = 1h;
    options.searchTimeout = 2s;
    addProducer("slow", "fault load slow 5000\n" + cameras(1));
    addProducer("well", "interface n|N|GEV\ndevice n|1|V|M|S|N|GEV\n");
    start();
    const auto recorder = recordCameras();
    EXPECT_EQ(listIds(), Ids{"well.cti/n/1"});
    EXPECT_EQ(list().size(), 1U) << "a second wait would be long enough for the reply";
    EXPECT_EQ(list().size(), 1U);
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    EXPECT_EQ(recorder->calls(), Calls{"+slow.cti/net0/A1"});
    EXPECT_EQ(list().size(), 2U);
    EXPECT_TRUE(reports().empty());
}

TEST_F(FailureTest, slowOrHangingProducerKeepsItsCameras)
{
    options.searchTimeout = 200ms;
    options.replyTimeout = 1h;
    options.closeTimeout = 100ms;
    addProducer("a", "fault IFUpdateDeviceList slow 600\n" + cameras(2));
    start();
    ASSERT_TRUE(waitUntil([this] { return list().size() == 2; }));
    const auto interface = interfaceOf(list(), 1);
    const auto update = feature(*interface, "DeviceUpdateList");
    EXPECT_EQ(update->RunCommand(), CvxErrorSuccess) << "the result of the last search is used";
    ASSERT_EQ(feature(*interface, "DeviceSelector")->SetValue(1), CvxErrorSuccess);
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceID")), "A2");

    const std::size_t before = countCalls("a", "IFUpdateDeviceList");
    setScript("a", "fault IFUpdateDeviceList hang\n" + cameras(1));
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") > before; }));
    EXPECT_EQ(update->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(list().size(), 2U);
}

TEST_F(FailureTest, deathOfAProducerIsNoticedAlthoughItsChildKeepsTheSocketOpen)
{
    options.pollInterval = 1h;
    options.searchTimeout = 1h;
    options.replyTimeout = 20s; // Ends the search with another report if the death is not noticed.
    options.firstRestartDelay = 1h;
    options.maxRestartDelay = 1h;
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault IFUpdateDeviceList fork-and-die\n" + cameras(1));
    EXPECT_TRUE(list().empty());
    EXPECT_EQ(reports(), Calls{ctiPath("a.cti").string() + ": was ended by SIGKILL (Killed)"});
    EXPECT_TRUE(waitUntil([&] { return recorder->calls() == Calls{"-a.cti/net0/A1"}; }));
    EXPECT_TRUE(waitUntil([this] { return processesWith(ctiPath("a.cti").string()).empty(); }));
}

TEST_F(FailureTest, hostsSurviveAStandstillOfAllProcesses)
{
    options.searchTimeout = 300ms;
    options.replyTimeout = 5s;
    addProducer("a", "fault IFUpdateDeviceList slow 4000\n" + cameras(1));
    const std::filesystem::path listed = directory.path() / "listed";
    const pid_t program = fork(); // The system runs in a child process, which this process can stop.
    if (program == 0) {
        start();
        const bool isListed = waitUntil([this] { return list().size() == 1; });
        writeFile(listed, isListed && reports().empty() ? "yes" : testing::PrintToString(reports()));
        pause();
    }
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") == 1; }));
    const pid_t host = hostOf("a");
    kill(program, SIGSTOP);
    kill(host, SIGSTOP);
    const TimePoint resumeAt = SteadyClock::now() + options.replyTimeout + 500ms;
    EXPECT_TRUE(waitUntil([&] { return SteadyClock::now() >= resumeAt; }));
    kill(program, SIGCONT);
    EXPECT_TRUE(waitUntil([&] { return SteadyClock::now() >= resumeAt + 200ms; }));
    kill(host, SIGCONT);
    EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(listed); }));
    EXPECT_EQ(readFile(listed), "yes");
    EXPECT_EQ(countCalls("a", "load"), 1U);
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
}
