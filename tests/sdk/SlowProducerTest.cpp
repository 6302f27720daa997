#include "tests/sdk/support/SystemTest.h"

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;

class SlowProducerTest : public SystemTest
{
protected:
    SlowProducerTest()
    {
        options.answerWait = 1500ms;
        options.firstRestart = 1h;
    }
};

TEST_F(SlowProducerTest, IsNotWaitedForTwiceAndItsLateAnswerIsAnnounced)
{
    options.lookInterval = 1h;
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
    options.answerWait = 400ms;
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

TEST_F(SlowProducerTest, KeepsItsCamerasWhileItIsLate)
{
    options.lookInterval = 1h;
    addProducer("slow", cameras(1));
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 1U);
    setScript("slow", "fault IFUpdateDeviceList slow 3500\n" + cameras(2));
    EXPECT_EQ(list().size(), 1U);
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    EXPECT_EQ(recorder->calls(), Calls{"+slow.cti/net0/A2"});
}

TEST_F(SlowProducerTest, IsKilledAtTheLimit)
{
    options.answerLimit = 2000ms;
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
    options.answerWait = 20s;
    options.lookInterval = 1h; // So that nothing else wakes the search.
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault IFUpdateDeviceList fork-and-die\n" + cameras(1));
    EXPECT_LT(timeOf([this] { EXPECT_TRUE(list().empty()); }), 10s);
}
