#include "tests/sdk/support/SystemTest.h"

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;

class SlowProducerTest : public SystemTest
{
protected:
    SlowProducerTest()
    {
        options.searchTimeout = 1500ms;
        options.firstRestartDelay = 1h;
    }

    /// What the calls of a function, or of a function and an interface, were given.
    Calls timeoutsOf(const std::string &producer, const std::string &call) const
    {
        Calls timeouts;
        for (const std::string &line : callsOf(producer)) {
            if (line.rfind(call + ' ', 0) == 0)
                timeouts.push_back(line.substr(call.size() + 1));
        }
        return timeouts;
    }
};

TEST_F(SlowProducerTest, IsNotWaitedForTwiceAndItsLateAnswerIsAnnounced)
{
    options.pollInterval = 1h;
    addProducer("slow", "fault load slow 4000\n" + cameras(1));
    addProducer("well", cameras(2));
    start();
    const auto recorder = recordCameras();
    EXPECT_GE(timeOf([this] { EXPECT_EQ(list().size(), 2U); }), 1400ms);
    EXPECT_LT(timeOf([this] { EXPECT_EQ(list().size(), 2U); }), 1000ms);
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    EXPECT_EQ(recorder->calls(), Calls{"+slow.cti/net0/A1"});
    EXPECT_EQ(list().size(), 3U) << "from then on it is waited for";
    EXPECT_TRUE(reports().empty());
}

TEST_F(SlowProducerTest, IsWaitedForOnceWhenItIsSlowEveryTime)
{
    options.searchTimeout = 400ms;
    addProducer("slow", "fault IFUpdateDeviceList slow 600\n" + cameras(1));
    addProducer("well", cameras(2));
    start();
    EXPECT_GE(timeOf([this] { list(); }), 390ms);
    const auto until = std::chrono::steady_clock::now() + 2s;
    while (std::chrono::steady_clock::now() < until)
        ASSERT_LT(timeOf([this] { list(); }), 250ms);
    EXPECT_EQ(list().size(), 3U);
    EXPECT_GE(countCalls("slow", "IFUpdateDeviceList"), 3U) << "it is asked all the same";
}

TEST_F(SlowProducerTest, TellsEachCamerasVendorWhenItIsSlowEveryTime)
{
    options.searchTimeout = 400ms;
    addProducer("slow",
        "fault IFUpdateDeviceList slow 600\n"
        "interface net0|N|GEV\ndevice net0|A1|Orvelle\ndevice net0|A2|Ferrant\n");
    start();
    ASSERT_TRUE(waitUntil([this] { return list().size() == 2; }));
    const auto interface = interfaceOf(list(), 1);
    const auto update = feature(*interface, "DeviceUpdateList");
    EXPECT_LT(timeOf([&] { EXPECT_EQ(update->RunCommand(), CvxErrorSuccess); }), 300ms);
    ASSERT_EQ(feature(*interface, "DeviceSelector")->SetValue(1), CvxErrorSuccess);
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceID")), "A2");
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceVendorName")), "Ferrant");
}

TEST_F(SlowProducerTest, KeepsItsCamerasWhileItIsLate)
{
    options.pollInterval = 1h;
    addProducer("slow", cameras(1));
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 1U);
    setScript("slow", "fault IFUpdateDeviceList slow 3500\n" + cameras(2));
    EXPECT_EQ(list().size(), 1U);
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    EXPECT_EQ(recorder->calls(), Calls{"+slow.cti/net0/A2"});
}

TEST_F(SlowProducerTest, ASearchThatRunsOutOfTimeGetsMoreAndKeepsIt)
{
    options.searchTimeout = 3s;
    addProducer("slow",
        "fault IFUpdateDeviceList:net0 search 1200\n" + cameras(1)
            + "interface net1|Network 1|GEV\ndevice net1|Q1|V|M|S|N|GEV\n");
    start();
    EXPECT_EQ(listIds(), Calls{"slow.cti/net1/Q1"}) << "the others are not kept waiting";
    const Calls both{"slow.cti/net0/A1", "slow.cti/net1/Q1"};
    ASSERT_TRUE(waitUntil([&] { return listIds() == both; }));
    const std::size_t searches = timeoutsOf("slow", "IFUpdateDeviceList net0").size();
    ASSERT_TRUE(waitUntil([&] { return timeoutsOf("slow", "IFUpdateDeviceList net0").size() > searches; }));
    EXPECT_EQ(listIds(), both);
    Calls timeouts = timeoutsOf("slow", "IFUpdateDeviceList net0");
    timeouts.resize(4);
    EXPECT_EQ(timeouts, (Calls{"500", "1000", "2000", "2000"}));
    EXPECT_EQ(timeoutsOf("slow", "IFUpdateDeviceList net1").back(), "500");
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(SlowProducerTest, ASearchForInterfacesThatRunsOutOfTimeGetsMoreAndKeepsIt)
{
    options.searchTimeout = 3s;
    addProducer("slow", "fault TLUpdateInterfaceList search 1200\n" + cameras(1));
    start();
    EXPECT_TRUE(waitUntil([this] { return list().size() == 1; }));
    ASSERT_TRUE(waitUntil([&] { return timeoutsOf("slow", "TLUpdateInterfaceList").size() >= 4; }));
    Calls timeouts = timeoutsOf("slow", "TLUpdateInterfaceList");
    timeouts.resize(4);
    EXPECT_EQ(timeouts, (Calls{"500", "1000", "2000", "2000"}));
    EXPECT_EQ(countCalls("slow", "load"), 1U) << "it is no reason to start the host again";
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(SlowProducerTest, SearchesThatNeverEndStayWithinTheLimit)
{
    options.replyTimeout = 6500ms; // One that waited the longest time for each would need eight seconds.
    std::string script;
    for (int i = 10; i < 26; ++i) { // Twice as many as are searched side by side.
        const std::string id = "net" + std::to_string(i);
        script += "interface " + id + "\nfault IFUpdateDeviceList:" + id + " search 60000\n";
    }
    addProducer("slow", script);
    start();
    const auto lastAndFirst = [this] {
        const Calls all = timeoutsOf("slow", "IFUpdateDeviceList net10");
        return all.size() >= 5 ? Calls{all[3], all[4]} : Calls{};
    };
    ASSERT_TRUE(waitUntil([&] { return !lastAndFirst().empty(); }));
    const Calls timeouts = lastAndFirst();
    EXPECT_GT(std::stoi(timeouts[0]), 3500) << "what is left of the longest time when its thread runs";
    EXPECT_LE(std::stoi(timeouts[0]), 4000);
    EXPECT_EQ(timeouts[1], "500") << "what never answers is given little time again";
    EXPECT_EQ(reports().size(), 1U) << testing::PrintToString(reports());
    EXPECT_EQ(countReports("IFUpdateDeviceList failed with -1011 (GC_ERR_TIMEOUT)"), 1U);
}

TEST_F(SlowProducerTest, IsKilledAtTheLimit)
{
    options.replyTimeout = 2000ms;
    addProducer("slow", cameras(1));
    addProducer("well", cameras(2));
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 3U);
    setScript("slow", "fault IFUpdateDeviceList hang\n" + cameras(1));
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    EXPECT_EQ(recorder->calls(), Calls{"-slow.cti/net0/A1"});
    EXPECT_EQ(countReports("cti/slow.cti: did not answer within 2.0 s and was killed"), 1U);
    EXPECT_LT(timeOf([this] { EXPECT_EQ(list().size(), 2U); }), 1000ms);
    EXPECT_EQ(countCalls("slow", "load"), 1U);
    EXPECT_TRUE(waitUntil([&] { return processesWith(ctiPath("slow.cti").string()).empty(); }));
}

TEST_F(SlowProducerTest, ADriverThatForkedAndDiedIsNoticedAndCleanedUp)
{
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 1U);
    setScript(
        "a", "fault IFUpdateDeviceList fork-and-die\n" + cameras(1)); // The child keeps the socket open.
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }, 10s));
    EXPECT_TRUE(waitUntil([&] { return processesWith(ctiPath("a.cti").string()).empty(); }));
}

TEST_F(SlowProducerTest, ADriverThatForkedAndDiedIsNotWaitedForAnyLonger)
{
    options.searchTimeout = 20s;
    options.pollInterval = 1h; // So that nothing else wakes the search.
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault IFUpdateDeviceList fork-and-die\n" + cameras(1));
    EXPECT_LT(timeOf([this] { EXPECT_TRUE(list().empty()); }), 10s);
}
