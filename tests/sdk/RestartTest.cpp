#include "tests/sdk/support/OutOfDescriptors.h"
#include "tests/sdk/support/SystemTest.h"

#include <csignal>
#include <ctime>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Clock = std::chrono::steady_clock;
using Calls = std::vector<std::string>;

class RestartTest : public SystemTest
{
protected:
    pid_t hostOf(const std::string &producer)
    {
        const auto hosts = processesWith(ctiPath(producer + ".cti").string());
        return hosts.empty() ? -1 : hosts.front();
    }

    /// What a call takes of this process's processor time.
    template <typename Call>
    static std::chrono::milliseconds processorTimeOf(const Call &call)
    {
        const std::clock_t start = std::clock();
        call();
        return std::chrono::milliseconds((std::clock() - start) * 1000 / CLOCKS_PER_SEC);
    }
};

TEST_F(RestartTest, ACrashedHostLosesItsCamerasAndComesBackWithThem)
{
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 1U);
    ASSERT_EQ(kill(hostOf("a"), SIGKILL), 0);
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() == 2; }));
    EXPECT_EQ(recorder->calls(), (Calls{"-a.cti/net0/A1", "+a.cti/net0/A1"}));
    EXPECT_TRUE(waitUntil([&] { return list().size() == 1; }));
    ASSERT_EQ(reports().size(), 1U);
    EXPECT_EQ(countReports("cti/a.cti: was ended by SIGKILL (Killed)"), 1U);
}

TEST_F(RestartTest, ACrashIsNoticedWhileNobodyAsks)
{
    options.pollInterval = 1h;
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    list();
    ASSERT_EQ(kill(hostOf("a"), SIGKILL), 0);
    EXPECT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
}

TEST_F(RestartTest, ARepairedDriverComesBack)
{
    addProducer("a", "fault GCInitLib error -1001\n" + cameras(1));
    start();
    EXPECT_TRUE(list().empty());
    setScript("a", cameras(1));
    EXPECT_TRUE(waitUntil([&] { return list().size() == 1; }));
}

TEST_F(RestartTest, TheDelayDoublesUpToItsLimit)
{
    options.firstRestartDelay = 100ms;
    options.maxRestartDelay = 400ms;
    addProducer("a", "fault load exit 9\n");
    start();
    std::vector<Clock::time_point> times;
    while (times.size() < 6) {
        ASSERT_TRUE(waitUntil([&] { return countCalls("a", "load") > times.size(); }));
        times.push_back(Clock::now());
    }
    stop();
    const std::chrono::milliseconds expected[] = {100ms, 200ms, 400ms, 400ms, 400ms};
    for (std::size_t i = 0; i < 5; ++i) {
        // Measured from load to load, and seen by polling: a start seen late shortens the time to the next.
        EXPECT_GE(times[i + 1] - times[i], expected[i] - 50ms) << i;
        EXPECT_LT(times[i + 1] - times[i], expected[i] + 2s) << i;
    }
}

TEST_F(RestartTest, TheDelayStartsFromTheFirstAgainAfterAGoodRun)
{
    options.firstRestartDelay = 100ms;
    options.maxRestartDelay = 1600ms;
    addProducer("a", "fault load exit 9\n" + cameras(1));
    start();
    ASSERT_TRUE(
        waitUntil([&] { return countCalls("a", "load") >= 4; })); // The next delay is 800 ms, or 1600.
    setScript("a", cameras(1));
    ASSERT_TRUE(waitUntil([&] { return list().size() == 1; }));
    const auto goodUntil = Clock::now() + options.maxRestartDelay;
    ASSERT_TRUE(waitUntil([&] { return Clock::now() >= goodUntil && list().size() == 1; }));

    const std::size_t loads = countCalls("a", "load");
    const auto killed = Clock::now();
    ASSERT_EQ(kill(hostOf("a"), SIGKILL), 0);
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "load") > loads; }));
    EXPECT_LT(Clock::now() - killed, 700ms);
}

TEST_F(RestartTest, AHangThatRepeatsIsReportedOnce)
{
    options.searchTimeout = 100ms;
    options.replyTimeout = 300ms;
    options.closeTimeout = 100ms;
    addProducer("a", "fault load hang\n");
    start();
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "load") >= 3; }));
    stop(); // In the middle of another one.
    EXPECT_EQ(reports().size(), 1U) << testing::PrintToString(reports());
}

TEST_F(RestartTest, AFailureThatRepeatsIsReportedOnce)
{
    addProducer("a", "fault load exit 9\n");
    start();
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "load") >= 4; }));
    EXPECT_EQ(reports().size(), 1U) << testing::PrintToString(reports());
}

TEST_F(RestartTest, AFailureIsReportedAgainWhenTheProducerHasWorkedMeanwhile)
{
    addProducer("a", cameras(1));
    start();
    for (std::size_t crashes = 1; crashes <= 2; ++crashes) {
        ASSERT_TRUE(waitUntil([&] { return list().size() == 1; }));
        ASSERT_EQ(kill(hostOf("a"), SIGKILL), 0);
        EXPECT_TRUE(waitUntil([&] { return countReports("SIGKILL") == crashes; }));
    }
}

TEST_F(RestartTest, AFailureIsReportedWithoutTheDriversWordsWhereItHasNone)
{
    const std::string failure = "fault IFUpdateDeviceList error -1010\n" + cameras(1);
    addProducer("refusing", failure + "fault GCGetLastError error -1001\n");
    addProducer("throwing", failure + "fault GCGetLastError throw\n");
    setScript("lacking", failure);
    std::filesystem::copy_file(MINIMAL_PRODUCER, ctiPath("lacking.cti"));
    start();
    EXPECT_TRUE(waitUntil([this] { return reports().size() == 3; }));
    for (const std::string &line : reports())
        EXPECT_EQ(line.substr(line.find(": ")), ": IFUpdateDeviceList failed with -1010 (GC_ERR_IO)") << line;
}

TEST_F(RestartTest, ADriverThatThrowsBetweenTwoLooksIsReportedWithItsReason)
{
    options.pollInterval = 1h;
    options.firstRestartDelay = 1h;
    addProducer("a", "fault GCInitLib throw-later 1000\n" + cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    ASSERT_TRUE(waitUntil([this] { return !reports().empty(); }));
    EXPECT_EQ(reports(),
        std::vector<std::string>{ctiPath("a.cti").string()
            + ": the driver failed: threw an exception that nobody caught: licence server lost"});
}

TEST_F(RestartTest, AHostIsStartedAgainWhenThereAreDescriptorsAgain)
{
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    const pid_t host = hostOf("a");
    {
        const OutOfDescriptors outOfDescriptors;
        ASSERT_EQ(kill(host, SIGKILL), 0);
        EXPECT_TRUE(waitUntil(
            [this] { return countReports("cti/a.cti: no socket for its host: Too many open files") == 1; }));
    }
    EXPECT_TRUE(waitUntil([this] { return list().size() == 1; }));
}

TEST_F(RestartTest, MoreProducersThanDescriptorsKeepNoneFromAnswering)
{
    options.pollInterval = 1h;
    options.firstRestartDelay = 1h;
    addProducer("a", "fault IFUpdateDeviceList slow 1500\n" + cameras(1));
    for (int i = 0; i < 40; ++i)
        writeFile(ctiPath("text" + std::to_string(i) + ".cti"), "no library");
    const OutOfDescriptors few(32);
    start();
    const auto used = processorTimeOf([this] { EXPECT_EQ(list().size(), 1U); });
    EXPECT_LT(used, 750ms) << "it waits, and does not ask all the time";
}

TEST_F(RestartTest, ALimitBelowWhatIsOpenStopsNothing)
{
    options.pollInterval = 1h;
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault IFUpdateDeviceList slow 1500\n" + cameras(2));
    const OutOfDescriptors none;
    const auto used = processorTimeOf([this] { EXPECT_EQ(list().size(), 2U); });
    EXPECT_LT(used, 750ms) << "it waits, and does not ask all the time";
}

TEST_F(RestartTest, AMissingHostProgramIsReportedAndComesBack)
{
    const auto host = directory.path() / "Host";
    std::filesystem::copy_file(CVX_PRODUCER_HOST, host);
    options.hostProgram = host.string();
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    std::filesystem::rename(host, directory.path() / "Away");
    ASSERT_EQ(kill(hostOf("a"), SIGKILL), 0);
    ASSERT_TRUE(waitUntil([&] { return countReports("cannot start") > 0; }));
    EXPECT_TRUE(list().empty());
    std::filesystem::rename(directory.path() / "Away", host);
    EXPECT_TRUE(waitUntil([&] { return list().size() == 1; }));
}

TEST_F(RestartTest, ThoseThatFailKeepNobodyFromItsFirstStart)
{
    options.hostProgram = (directory.path() / "Host").string();
    writeFile(options.hostProgram, "#!/nowhere/interpreter\n"); // Fails before there is a process.
    std::filesystem::permissions(options.hostProgram, std::filesystem::perms::owner_all);
    options.firstRestartDelay = 0ms; // A producer that has failed is due again at once.
    constexpr std::size_t Producers = 12; // More than are started at a time.
    for (std::size_t i = 0; i < Producers; ++i)
        addProducer("a" + std::to_string(i), cameras(1));
    start();
    EXPECT_TRUE(waitUntil([&] { return countReports("cannot start") == Producers; }));
}

TEST_F(RestartTest, AReplacedHostProgramIsTakenWithTheNextStart)
{
    const auto host = directory.path() / "Host";
    std::filesystem::copy_file(CVX_PRODUCER_HOST, host);
    options.hostProgram = host.string();
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    const pid_t old = hostOf("a");
    writeFile(host, "#!/bin/sh\nexit 5\n");
    std::filesystem::permissions(host, std::filesystem::perms::owner_all);
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(hostOf("a"), old) << "the one that runs goes on";

    ASSERT_EQ(kill(old, SIGKILL), 0);
    EXPECT_TRUE(waitUntil([&] { return countReports("cti/a.cti: exited with code 5") == 1; }));
    EXPECT_TRUE(list().empty());
    std::filesystem::remove(host);
    std::filesystem::copy_file(CVX_PRODUCER_HOST, host);
    EXPECT_TRUE(waitUntil([&] { return list().size() == 1; }));
}

TEST_F(RestartTest, AnInterfaceSurvivesOneFailedUpdate)
{
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault IFUpdateDeviceList error -1010\n" + cameras(1));
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); })) << "two failures are too many";
    EXPECT_EQ(countReports("IFUpdateDeviceList failed with -1010 (GC_ERR_IO)"), 1U);
    setScript("a", cameras(1));
    EXPECT_TRUE(waitUntil([&] { return list().size() == 1; }));
    EXPECT_EQ(countCalls("a", "load"), 1U) << "it is no reason to start the host again";
}

TEST_F(RestartTest, AnInterfaceSurvivesOneIdThatCannotBeRead)
{
    options.pollInterval = 1h; // A look is a list.
    addProducer("a", cameras(2));
    start();
    ASSERT_EQ(list().size(), 2U);
    setScript("a", "fault IFGetDeviceID:A1 error -1010\n" + cameras(2));
    EXPECT_EQ(list().size(), 2U);
    setScript("a", cameras(2));
    EXPECT_EQ(list().size(), 2U);
    EXPECT_EQ(countReports("IFGetDeviceID failed with -1010 (GC_ERR_IO)"), 1U);
    setScript("a", "fault IFGetDeviceID:A1 error -1007\n" + cameras(2));
    EXPECT_EQ(listIds(), Calls{"a.cti/net0/A2"}) << "what is gone is gone";
}

TEST_F(RestartTest, AnIdThatCanNeverBeReadHidesNoOther)
{
    options.pollInterval = 1h; // A look is a list.
    addProducer("a", "fault IFGetDeviceID:A1 error -1010\n" + cameras(2));
    start();
    for (int look = 0; look < 3; ++look)
        EXPECT_EQ(listIds(), Calls{"a.cti/net0/A2"}) << look;
}

TEST_F(RestartTest, AnInterfaceWhoseIdCannotBeReadGoesOn)
{
    options.interfaceUpdateInterval = 0ms;
    const std::string both = cameras(1) + "interface net1|Network 1|GEV\n";
    addProducer("a", both);
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault TLGetInterfaceID:net0 error -1010\n" + both);
    ASSERT_TRUE(
        waitUntil([&] { return countReports("TLGetInterfaceID failed with -1010 (GC_ERR_IO)") == 1; }));
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(countCalls("a", "IFClose"), 0U);
    setScript("a", "fault TLGetInterfaceID:net0 error -1007\n" + both);
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFClose") == 1; })) << "what is gone is closed";
    EXPECT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    EXPECT_EQ(recorder->calls(), Calls{"-a.cti/net0/A1"});
}

TEST_F(RestartTest, AFailingListOfInterfacesKeepsThoseThatAreOpen)
{
    options.interfaceUpdateInterval = 0ms;
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault TLUpdateInterfaceList error -1010\n" + cameras(1));
    EXPECT_TRUE(waitUntil([&] { return countReports("TLUpdateInterfaceList failed with -1010") == 1; }));
    EXPECT_EQ(list().size(), 1U);
}
