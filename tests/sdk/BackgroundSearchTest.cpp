// Tests through the camera system that callers do not wait for the background searches.

#include "tests/sdk/support/SystemTest.h"

#include <algorithm>
#include <thread>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;
using Ids = std::vector<std::string>;

class BackgroundSearchTest : public SystemTest
{
protected:
    BackgroundSearchTest()
    {
        options.pollInterval = 1h;
        options.searchTimeout = 1h; // A test that waits for a search would hang.
    }

    /// Returns a script with a network interface and its cameras.
    static std::string network(int cameras)
    {
        std::string script = "interface net|Network|GEV\n";
        for (int i = 1; i <= cameras; ++i)
            script += "device net|" + std::to_string(i) + "|V|M|S" + std::to_string(i) + "|N|GEV\n";
        return script;
    }
};

TEST_F(BackgroundSearchTest, secondSearchHasMoreTimeAndReportsFurtherCameras)
{
    options.shortSearch = 200ms;
    options.backgroundSearch = 300ms;
    addProducer("a", network(1) + "late 300|net|2|V|M|S2|N|GEV\n");
    start();
    EXPECT_FALSE(list().empty());
    EXPECT_TRUE(waitUntil([&] { return list().size() == 2; }));
    Calls timeouts;
    for (const std::string &call : callsOf("a")) {
        if (call.rfind("IFUpdateDeviceList", 0) == 0)
            timeouts.push_back(call);
    }
    EXPECT_EQ(timeouts.front(), "IFUpdateDeviceList net 200");
    EXPECT_EQ(std::count(timeouts.begin(), timeouts.end(), "IFUpdateDeviceList net 300"), 1);
}

TEST_F(BackgroundSearchTest, callersDoNotWaitForASearchThatIsRunning)
{
    options.shortSearch = 200ms;
    options.backgroundSearch = 300ms;
    options.closeTimeout = 1h;
    addProducer("a", network(1) + "late 300|net|2|V|M|S2|N|GEV\n");
    start();
    EXPECT_TRUE(waitUntil([&] { return list().size() == 2; })); // The background search has ended.
    const std::size_t before = countCalls("a", "IFUpdateDeviceList");
    setScript("a", "fault IFUpdateDeviceList hang\n" + network(2));
    unsigned count = 0;
    // This caller waits for its own search until the system is shut down.
    std::thread lister([&] { system->GetCameras(nullptr, count); });
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") == before + 1; }));
    const Cameras found = list();
    EXPECT_EQ(found.size(), 2U);
    EXPECT_EQ(feature(*interfaceOf(found, 0), "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    stop(); // The host does not get the time to close, because its search cannot be interrupted.
    lister.join();
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(BackgroundSearchTest, slowProducerDelaysALaterListOnlyForTheRefreshTimeout)
{
    options.refreshTimeout = 10ms;
    addProducer("a", network(1));
    start();
    list();
    const auto recorder = recordCameras();
    setScript("a", "fault IFUpdateDeviceList slow 2000\n" + network(2));
    EXPECT_EQ(list().size(), 1U);
    EXPECT_TRUE(waitUntil([&] { return recorder->calls() == Calls{"+a.cti/net/2"}; }));
}

TEST_F(BackgroundSearchTest, cameraSurvivesOneBackgroundSearch)
{
    options.pollInterval = 100ms;
    addProducer("a", network(2));
    start();
    list();
    const auto recorder = recordCameras();
    const auto searches = [&] { return countCalls("a", "IFUpdateDeviceList"); };
    const std::size_t before = searches();
    setScript("a", network(1));
    // The first poll may also have reported the first list.
    const auto isGone
        = [&] { return !recorder->calls().empty() && recorder->calls().back() == "-a.cti/net/2"; };
    EXPECT_TRUE(waitUntil(isGone));
    EXPECT_GE(searches(), before + 2);
}

TEST_F(BackgroundSearchTest, changeOfASelfUpdatingProducerIsReportedWithoutAPoll)
{
    addProducer("a", "self-updating\n" + network(1));
    start();
    list();
    const auto recorder = recordCameras();
    setScript("a", "self-updating\n" + network(1) + "interface other|O|GEV\ndevice other|4|V|M|S4|N|GEV\n");
    EXPECT_TRUE(waitUntil([&] { return recorder->calls() == Calls{"+a.cti/other/4"}; }));
    setScript("a", "self-updating\n" + network(1) + "interface other|O|GEV\n");
    EXPECT_TRUE(waitUntil([&] { return recorder->calls().size() == 2; }))
        << "the producer decides what is gone";
}

TEST_F(BackgroundSearchTest, expensiveSearchIsFollowedByALongPause)
{
    options.pollInterval = 50ms;
    addProducer("a", "fault IFUpdateDeviceList burn 50\n" + network(1));
    const TimePoint startedAt = SteadyClock::now();
    start();
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") == 3; }));
    EXPECT_GE(SteadyClock::now() - startedAt, 2 * 200ms)
        << "at least four times the processor time of a search";
}
