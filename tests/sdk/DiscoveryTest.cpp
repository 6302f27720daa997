// The camera system over producers that work.

#include "tests/sdk/support/SystemTest.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;
using Ids = std::vector<std::string>;

class DiscoveryTest : public SystemTest
{
protected:
    /// Makes the system search only when the test asks for it.
    void neverPoll() { options.pollInterval = 1h; }
};

TEST_F(DiscoveryTest, findsProducersInTheConfiguredDirectoriesAndThoseOfTheEnvironment)
{
    for (const char *folder : {"bin", "producers", "environment"})
        std::filesystem::create_directory(directory.path() / folder);
    writeFile(
        options.configurationFile, "<c><CtiPaths><Path>producers</Path><Path>cti</Path></CtiPaths></c>");
    std::filesystem::copy_file(TEST_PRODUCER, directory.path() / "producers/z.cti");
    writeFile(directory.path() / "producers/z.script", cameras(1));
    std::filesystem::copy_file(TEST_PRODUCER, directory.path() / "environment/a.cti");
    writeFile(directory.path() / "environment/a.script", "interface e|E|GEV\ndevice e|1\n");
    addProducer("b", cameras(2)); // Its first camera is that of "z", in an earlier directory.
    setenv("GENICAM_GENTL64_PATH", (":/nowhere:" + (directory.path() / "environment").string()).c_str(), 1);
    start();
    EXPECT_EQ(listIds(), (Ids{"z.cti/net0/A1", "b.cti/net0/A2", "a.cti/e/1"}));
    unsetenv("GENICAM_GENTL64_PATH");
}

TEST_F(DiscoveryTest, fillsAnArrayFromTheLastSearch)
{
    addProducer("a", cameras(3));
    start();
    Cameras found(5);
    unsigned count = 2;
    EXPECT_EQ(system->GetCameras(found.data(), count), CvxErrorSuccess) << "searches if there was no search";
    EXPECT_EQ(count, 2U);
    EXPECT_TRUE(found[1]);
    EXPECT_FALSE(found[2]) << "never beyond the end of the array";

    const auto recorder = recordCameras();
    ASSERT_EQ(system->GetCameras(nullptr, count), CvxErrorSuccess);
    EXPECT_EQ(count, 3U);
    setScript("a", cameras(4));
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() == 1; }));
    count = 5;
    EXPECT_EQ(system->GetCameras(found.data(), count), CvxErrorSuccess);
    EXPECT_EQ(count, 3U) << "whatever appeared since";
}

TEST_F(DiscoveryTest, recentSearchIsReusedAlsoBesideASlowProducer)
{
    neverPoll();
    options.searchTimeout = 1min;
    options.reuseTime = 4s;
    addProducer("quick", "interface n|N|GEV\ndevice n|1\n");
    addProducer("slow", "fault IFUpdateDeviceList slow 4200\n" + cameras(1));
    start();
    const Cameras found = list();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(feature(*interfaceOf(found, 0), "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(countCalls("quick", "IFUpdateDeviceList"), 1U);
}

TEST_F(DiscoveryTest, oldSearchIsRepeatedWithoutReadingTheInterfacesAgain)
{
    neverPoll();
    options.interfaceUpdateInterval = 2h;
    addProducer("a", cameras(2));
    start();
    list();
    setScript("a", cameras(3));
    EXPECT_EQ(list().size(), 3U);
    EXPECT_EQ(countCalls("a", "TLUpdateInterfaceList"), 1U);
}

TEST_F(DiscoveryTest, updateOfAnInterfaceSearchesItAlone)
{
    neverPoll();
    options.interfaceUpdateInterval = 0ms;
    const std::string both = "interface a|A|GEV\ninterface b|B|GEV\ndevice a|1\ndevice b|2\n";
    addProducer("p", both);
    start();
    const auto interface = interfaceOf(list(), 1);
    const std::size_t before = countCalls("p", "IFUpdateDeviceList");
    setScript("p", both + "device b|3\n");
    ASSERT_EQ(feature(*interface, "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(countCalls("p", "IFUpdateDeviceList"), before + 1);
    ASSERT_EQ(feature(*interface, "DeviceSelector")->SetValue(1), CvxErrorSuccess);
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceID")), "3");

    setScript("p", "interface other|O|GEV\n");
    list();
    EXPECT_EQ(feature(*interface, "DeviceUpdateList")->RunCommand(), CvxErrorNotAvailable);
    EXPECT_EQ(valueOf(*feature(*interface, "DeviceID")), "3") << "the snapshot stays";
}

TEST_F(DiscoveryTest, announcesCamerasAndInterfacesThatAppearOrDisappear)
{
    addProducer("a", "interface x|X|GEV\ndevice x|1\n");
    start();
    const auto recorder = recordCameras();
    const auto interfaces = std::make_shared<InterfaceRecorder>();
    ASSERT_EQ(system->RegisterInterfaceListObserver(interfaces), CvxErrorSuccess);
    EXPECT_EQ(list().size(), 1U);
    setScript("a", "interface x|X|GEV\ndevice x|1\ninterface y|Y|GEV\ndevice y|2\n");
    ASSERT_TRUE(waitUntil([&] { return interfaces->calls() == "+"; }));
    setScript("a", "interface y|Y|GEV\ndevice y|2\n");
    ASSERT_TRUE(waitUntil([&] { return interfaces->calls() == "+-"; }));
    const std::size_t before = countCalls("a", "IFUpdateDeviceList");
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") >= before + 3; }));
    EXPECT_EQ(recorder->calls(), (Calls{"+a.cti/y/2", "-a.cti/x/1"})) << "each once";
}

TEST_F(DiscoveryTest, announcesTheFirstCamerasToAProgramThatNeverAsksAndHoldsTheRestBack)
{
    options.notificationHold = 400ms;
    addProducer("a", cameras(2));
    start();
    const auto recorder = recordCameras();
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() == 2; }));
    EXPECT_EQ(recorder->calls(), (Calls{"+a.cti/net0/A1", "+a.cti/net0/A2"}));
    list();
    const TimePoint listedAt = SteadyClock::now();
    setScript("a", cameras(3));
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() == 3; }));
    EXPECT_GE(SteadyClock::now() - listedAt, 390ms);
}

TEST_F(DiscoveryTest, observerMayUseTheSystem)
{
    addProducer("a", cameras(1));
    start();
    list();
    std::atomic<std::size_t> listed{0};
    std::atomic<CvxError> error{CvxErrorFailed};
    const auto recorder = std::make_shared<CameraRecorder>();
    recorder->onCall = [&] {
        const Cameras found = list();
        error = feature(*interfaceOf(found, 0), "DeviceUpdateList")->RunCommand();
        listed = found.size();
    };
    ASSERT_EQ(system->RegisterCameraListObserver(recorder), CvxErrorSuccess);
    setScript("a", cameras(2));
    EXPECT_TRUE(waitUntil([&] { return listed == 2; }));
    EXPECT_EQ(error, CvxErrorSuccess);
    stop();
}

TEST_F(DiscoveryTest, slowObserverDelaysNoList)
{
    addProducer("a", cameras(1));
    start();
    list();
    std::atomic<bool> isReleased{false};
    const auto slow = std::make_shared<CameraRecorder>();
    slow->onCall = [&] { waitUntil([&] { return isReleased.load(); }); };
    ASSERT_EQ(system->RegisterCameraListObserver(slow), CvxErrorSuccess);
    setScript("a", cameras(2));
    ASSERT_TRUE(waitUntil([&] { return slow->calls().size() == 1; }));
    setScript("a", cameras(3));
    EXPECT_TRUE(waitUntil([&] { return list().size() == 3; }));
    EXPECT_EQ(slow->calls().size(), 1U);
    isReleased = true;
    EXPECT_TRUE(waitUntil([&] { return slow->calls().size() == 2; }));
}
