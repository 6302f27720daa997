#include "tests/sdk/support/SystemTest.h"

#include <algorithm>
#include <cstdlib>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Ids = std::vector<std::string>;

class ListingTest : public SystemTest
{
protected:
    /// So that only what the test asks for is searched.
    void lookNever() { options.pollInterval = 1h; }
};

TEST_F(ListingTest, NoProducersAreNoFailure)
{
    start();
    EXPECT_TRUE(list().empty());
    EXPECT_TRUE(reports().empty());
}

TEST_F(ListingTest, ListsAllProducersInTheOrderOfTheirFiles)
{
    addProducer("b", cameras(1));
    addProducer("a", "interface z|Z|GEV\ninterface y|Y|GEV\ndevice z|2\ndevice z|1\ndevice y|3\n");
    start();
    EXPECT_EQ(listIds(), (Ids{"a.cti/y/3", "a.cti/z/1", "a.cti/z/2", "b.cti/net0/A1"}));
}

TEST_F(ListingTest, ListsTheSimulator)
{
    std::filesystem::copy_file(SIMULATOR, ctiPath("sim.cti"));
    writeFile(ctiPath("sim.json"), "{}"); // Not its scene: that is named after the simulator.
    start();
    EXPECT_EQ(list().size(), 2U) << "the cameras that it has without a scene";
    EXPECT_TRUE(reports().empty());
}

TEST_F(ListingTest, StartingWaitsForNoProducer)
{
    addProducer("slow", "fault load slow 1500\n" + cameras(1));
    EXPECT_LT(timeOf([this] { start(); }), 1000ms);
    EXPECT_EQ(listIds(), Ids{"slow.cti/net0/A1"});
}

TEST_F(ListingTest, FillsAnArrayFromTheSearchAndNeverBeyondItsEnd)
{
    addProducer("a", cameras(3));
    start();
    unsigned count = 0;
    ASSERT_EQ(system->GetCameras(nullptr, count), CvxErrorSuccess);
    ASSERT_EQ(count, 3U);

    Cameras two(3);
    count = 2;
    EXPECT_EQ(system->GetCameras(two.data(), count), CvxErrorSuccess);
    EXPECT_EQ(count, 2U);
    EXPECT_TRUE(two[1]);
    EXPECT_FALSE(two[2]);

    Cameras many(5);
    count = 5;
    EXPECT_EQ(system->GetCameras(many.data(), count), CvxErrorSuccess);
    EXPECT_EQ(count, 3U);
    EXPECT_FALSE(many[3]);
}

TEST_F(ListingTest, AnArrayIsFilledWithWhatTheSearchFoundWhateverCameSince)
{
    addProducer("a", cameras(1));
    start();
    auto recorder = recordCameras();
    unsigned count = 0;
    ASSERT_EQ(system->GetCameras(nullptr, count), CvxErrorSuccess);
    setScript("a", cameras(2));
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() == 1; }));
    count = 5;
    Cameras found(count);
    EXPECT_EQ(system->GetCameras(found.data(), count), CvxErrorSuccess);
    EXPECT_EQ(count, 1U);
}

TEST_F(ListingTest, AnArrayWithoutAPriorSearchIsSearchedFor)
{
    addProducer("a", cameras(2));
    start();
    Cameras found(2);
    unsigned count = 2;
    EXPECT_EQ(system->GetCameras(found.data(), count), CvxErrorSuccess);
    EXPECT_EQ(count, 2U);
}

TEST_F(ListingTest, ARecentSearchCountsAsANewOne)
{
    lookNever();
    options.reuseTime = 1h;
    addProducer("a", cameras(2));
    start();
    list();
    setScript("a", cameras(3));
    EXPECT_EQ(list().size(), 2U);
    EXPECT_EQ(countCalls("a", "IFUpdateDeviceList"), 1U);
}

TEST_F(ListingTest, AnOlderSearchDoesNot)
{
    lookNever();
    addProducer("a", cameras(2));
    start();
    list();
    setScript("a", cameras(3));
    EXPECT_EQ(list().size(), 3U);
}

TEST_F(ListingTest, AScanOfManyCamerasCostsOneSearch)
{
    lookNever();
    options.reuseTime = 1h;
    addProducer("a", cameras(5));
    start();
    const Cameras found = list();
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(feature(*interfaceOf(found, i), "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(countCalls("a", "IFUpdateDeviceList"), 1U);
}

TEST_F(ListingTest, AScanCostsOneSearchBesideASlowProducerToo)
{
    lookNever();
    options.reuseTime = 1s;
    addProducer("a", cameras(2));
    addProducer("slow", "fault IFUpdateDeviceList slow 1500\n" + cameras(1));
    start();
    const Cameras found = list();
    ASSERT_EQ(found.size(), 3U);
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(feature(*interfaceOf(found, i), "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(countCalls("a", "IFUpdateDeviceList"), 1U);
    EXPECT_EQ(countCalls("slow", "IFUpdateDeviceList"), 1U);
}

TEST_F(ListingTest, ProducersAreAskedAtTheSameTime)
{
    lookNever();
    for (const char *name : {"a", "b", "c", "d"})
        addProducer(name, "fault IFUpdateDeviceList slow 700\n" + cameras(1));
    start();
    EXPECT_LT(timeOf([this] { EXPECT_EQ(list().size(), 4U); }), 2500ms); // One after the other: 2.8 s.
}

TEST_F(ListingTest, InterfacesAreUpdatedAtTheSameTime)
{
    lookNever();
    std::string script = "fault IFUpdateDeviceList slow 400\n";
    for (int i = 0; i < 16; ++i) {
        const std::string id = "if" + std::to_string(i);
        script += "interface " + id + "|I|GEV\ndevice " + id + "|D\n";
    }
    addProducer("a", script);
    start();
    const auto time = timeOf([this] { EXPECT_EQ(list().size(), 16U); });
    EXPECT_LT(time, 3000ms); // One after the other: 6.4 s.
    EXPECT_GE(time, 700ms) << "the number of threads is bounded";
}

TEST_F(ListingTest, OneSlowInterfaceAmongQuickOnesHoldsUpOnlyItself)
{
    lookNever();
    std::string script;
    for (const std::string id : {"a", "b", "c", "d"})
        script += "interface " + id + "|I|GEV\ndevice " + id + "|D\n";
    addProducer("p", script);
    start();
    list();
    // All were quick so far, so they are updated one by one; now three of them take their time.
    setScript("p",
        script + "fault IFUpdateDeviceList:b slow 500\nfault IFUpdateDeviceList:c slow 500\n"
            + "fault IFUpdateDeviceList:d slow 500\n");
    EXPECT_LT(timeOf([this] { EXPECT_EQ(list().size(), 4U); }), 1450ms); // One after the other: 1.5 s.
}

TEST_F(ListingTest, UpdatesHaveAFiniteTimeout)
{
    addProducer("a", cameras(1));
    start();
    list();
    const auto calls = callsOf("a");
    EXPECT_NE(std::find(calls.begin(), calls.end(), "IFUpdateDeviceList net0 500"), calls.end());
}

TEST_F(ListingTest, TheListOfInterfacesIsNotReadWithEverySearch)
{
    lookNever();
    options.interfaceUpdateInterval = 2h;
    addProducer("a", cameras(1));
    start();
    for (int i = 0; i < 5; ++i)
        list();
    EXPECT_EQ(countCalls("a", "TLUpdateInterfaceList"), 1U);
    EXPECT_GE(countCalls("a", "IFUpdateDeviceList"), 5U);
}

TEST_F(ListingTest, AnInterfaceWithoutDevicesIsNotAskedAboutItself)
{
    addProducer("a", "interface empty|E|GEV\n" + cameras(1)); // The producer would crash.
    start();
    EXPECT_EQ(listIds(), Ids{"a.cti/net0/A1"});
    EXPECT_TRUE(reports().empty());
    const auto calls = callsOf("a");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "TLGetInterfaceInfo empty"), 0);
}

TEST_F(ListingTest, AProducerMayLackWhatOnlyAddsToAnAnswer)
{
    setScript("a", cameras(1));
    std::filesystem::copy_file(MINIMAL_PRODUCER, ctiPath("a.cti"));
    start();
    EXPECT_EQ(listIds(), Ids{"a.cti/net0/A1"});
    EXPECT_TRUE(reports().empty());
}

TEST_F(ListingTest, FindsProducersByTheEnvironmentToo)
{
    const TemporaryDirectory other;
    std::filesystem::copy_file(TEST_PRODUCER, other.path() / "other.cti");
    writeFile(other.path() / "other.script", "interface net0|N|GEV\ndevice net0|A1\n");
    addProducer("a", cameras(1));
    setenv("GENICAM_GENTL64_PATH", (":/nowhere:" + other.path().string()).c_str(), 1);
    start();
    EXPECT_EQ(listIds(), (Ids{"a.cti/net0/A1", "other.cti/net0/A1"}));
    unsetenv("GENICAM_GENTL64_PATH");
    EXPECT_EQ(callsOf("a").front(), "load") << "a producer must not see the variable";
}

TEST_F(ListingTest, KeepsFromProducersWhatMakesAWarningFatal)
{
    addProducer("a", cameras(1));
    setenv("G_DEBUG", "fatal-warnings", 1);
    start();
    list();
    unsetenv("G_DEBUG");
    EXPECT_EQ(callsOf("a").front(), "load");
}

TEST_F(ListingTest, ReadsTheConfigurationFile)
{
    std::filesystem::create_directories(directory.path() / "bin");
    std::filesystem::create_directories(directory.path() / "bin/drivers");
    writeFile(directory.path() / "bin/CvxC.xml", "<c><CtiPaths><Path>drivers</Path></CtiPaths></c>");
    std::filesystem::copy_file(TEST_PRODUCER, directory.path() / "bin/drivers/mine.cti");
    writeFile(directory.path() / "bin/drivers/mine.script", cameras(1));
    addProducer("not-named", cameras(1));
    start();
    EXPECT_EQ(listIds(), Ids{"mine.cti/net0/A1"});
}

TEST_F(ListingTest, ALinkToAProducerListsNothingTwice)
{
    addProducer("a", cameras(1));
    std::filesystem::create_symlink(ctiPath("a.cti"), ctiPath("b.cti"));
    start();
    EXPECT_EQ(listIds(), Ids{"a.cti/net0/A1"});
}

TEST_F(ListingTest, ARepeatedDeviceIdCountsOncePerInterface)
{
    addProducer("a", "interface x|X|GEV\ninterface y|Y|GEV\ndevice x|1\ndevice x|1\ndevice y|1\n");
    start();
    EXPECT_EQ(listIds(), (Ids{"a.cti/x/1", "a.cti/y/1"}));
}

TEST_F(ListingTest, ManyCamerasComeThrough)
{
    std::string script = "interface n|N|GEV\n"; // More than a socket holds at once.
    for (int i = 0; i < 1000; ++i)
        script += "device n|" + std::to_string(i) + "|V|M|S|" + std::string(500, 'x') + "|GEV\n";
    addProducer("a", script);
    start();
    EXPECT_EQ(list().size(), 1000U);
}

TEST_F(ListingTest, SearchesAtTheSameTimeShareOne)
{
    lookNever();
    addProducer("a", "fault IFUpdateDeviceList slow 300\n" + cameras(2));
    start();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([this] { EXPECT_EQ(list().size(), 2U); });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_LE(countCalls("a", "IFUpdateDeviceList"), 2U);
}

TEST_F(ListingTest, ATextThatGrowsMeanwhileIsAskedForFourTimes)
{
    lookNever();
    addProducer("new", "fault IFGetDeviceID grow\n" + cameras(1));
    addProducer("old", "fault IFGetDeviceID grow-1.3\n" + cameras(1)); // By another code.
    start();
    EXPECT_TRUE(list().empty());
    for (const char *producer : {"new", "old"})
        EXPECT_EQ(countCalls(producer, "IFGetDeviceID"), 4 * 2U) << "its size and itself each time";
}
