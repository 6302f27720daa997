// Tests the camera system with producers that work.

#include "tests/sdk/support/SystemTest.h"

#include <atomic>
#include <cstdlib>
#include <thread>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;
using Ids = std::vector<std::string>;

using DiscoveryTest = SystemTest;

TEST_F(DiscoveryTest, configuredDirectoriesPrecedeDirectoriesOfTheEnvironment)
{
    options.pollInterval = 1h; // From the first poll on, a camera stays with its producer.
    for (const char *folder : {"bin", "producers", "environment"})
        std::filesystem::create_directory(directory.path() / folder);
    writeFile(
        options.configurationFile, "<c><CtiPaths><Path>producers</Path><Path>cti</Path></CtiPaths></c>");
    std::filesystem::copy_file(TEST_PRODUCER, directory.path() / "producers/z.cti");
    writeFile(directory.path() / "producers/z.script", cameras(1));
    std::filesystem::copy_file(TEST_PRODUCER, directory.path() / "environment/a.cti");
    writeFile(directory.path() / "environment/a.script", "interface e|E|GEV\ndevice e|1\n");
    std::filesystem::create_directory(ctiPath("folder.cti"));
    addProducer("b", cameras(2)); // "z", in an earlier directory, reports the first camera too.
    setenv("GENICAM_GENTL64_PATH", (":/nowhere:" + (directory.path() / "environment").string()).c_str(), 1);
    start();
    EXPECT_EQ(listIds(), (Ids{"z.cti/net0/A1", "b.cti/net0/A2", "a.cti/e/1"}));
    unsetenv("GENICAM_GENTL64_PATH");
    EXPECT_EQ(countReports("cti/folder.cti: "), 1U);
}

TEST_F(DiscoveryTest, arrayIsFilledFromTheLastSearch)
{
    options.pollInterval = 1h;
    options.interfaceUpdateInterval = 0ms;
    options.searchTimeout = 1h; // Every producer replies at once.
    addProducer("a", cameras(3));
    start();
    Cameras found(5);
    unsigned count = 2;
    EXPECT_EQ(system->GetCameras(found.data(), count), CvxErrorSuccess)
        << "the first call searches even with an array";
    EXPECT_EQ(count, 2U);
    EXPECT_TRUE(found[1]);
    EXPECT_FALSE(found[2]) << "nothing is written beyond the end of the array";
    setScript("a", cameras(4));
    ASSERT_EQ(feature(*interfaceOf(found, 0), "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(system->GetCameras(found.data(), count = 5), CvxErrorSuccess);
    EXPECT_EQ(count, 3U) << "the camera that appeared later is not returned";
    EXPECT_EQ(system->GetCameras(nullptr, count), CvxErrorSuccess);
    EXPECT_EQ(count, 4U);
    setScript("a", "interface other|O|GEV\n");
    EXPECT_TRUE(list().empty());
    EXPECT_EQ(feature(*interfaceOf(found, 0), "DeviceUpdateList")->RunCommand(), CvxErrorNotAvailable);
}

TEST_F(DiscoveryTest, searchIsReusedEvenIfAnotherProducerIsSlow)
{
    options.pollInterval = 1h;
    options.searchTimeout = 1h;
    options.listReuse = 4s;
    options.interfaceReuse = 4s;
    addProducer("quick", "interface n|N|GEV\ndevice n|1\n");
    addProducer("slow", "fault IFUpdateDeviceList slow 4200\n" + cameras(1));
    start();
    EXPECT_EQ(feature(*interfaceOf(list(), 0), "DeviceUpdateList")->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(countCalls("quick", "IFUpdateDeviceList"), 1U);
}

TEST_F(DiscoveryTest, interfaceUpdateSearchesOnlyThatInterface)
{
    options.pollInterval = 1h;
    options.interfaceUpdateInterval = 0ms;
    options.searchTimeout = 1h; // Every producer replies at once.
    options.listReuse = 3s;
    options.interfaceReuse = 3s;
    const std::string both = "interface a|A|GEV\ninterface b|B|GEV\ndevice a|1\ndevice b|2\n";
    addProducer("p", both);
    start();
    const auto interface = interfaceOf(list(), 1);
    const auto update = feature(*interface, "DeviceUpdateList"), id = feature(*interface, "DeviceID");
    setScript("p", both + "device b|3\n");
    EXPECT_EQ(list().size(), 2U);
    EXPECT_EQ(update->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(countCalls("p", "IFUpdateDeviceList"), 2U) << "the search of both interfaces is reused";
    EXPECT_TRUE(waitUntil([&] {
        EXPECT_EQ(update->RunCommand(), CvxErrorSuccess);
        return feature(*interface, "DeviceSelector")->SetValue(1) == CvxErrorSuccess;
    }));
    EXPECT_EQ(valueOf(*id), "3");
    EXPECT_EQ(countCalls("p", "IFUpdateDeviceList"), 3U);

    setScript("p", "interface other|O|GEV\n");
    EXPECT_TRUE(waitUntil([&] { return list().empty(); }));
    EXPECT_EQ(update->RunCommand(), CvxErrorNotAvailable);
    EXPECT_EQ(valueOf(*id), "3") << "the snapshot does not change";
}

TEST_F(DiscoveryTest, observersAreNotifiedOnceOfEveryChange)
{
    options.pollInterval = 1h; // The first poll would notify the observers of the first list.
    options.interfaceUpdateInterval = 0ms;
    addProducer("a", "interface x|X|GEV\ndevice x|1\n");
    start();
    const auto recorder = recordCameras();
    const auto interfaces = std::make_shared<InterfaceRecorder>();
    ASSERT_EQ(system->RegisterInterfaceListObserver(interfaces), CvxErrorSuccess);
    EXPECT_EQ(list().size(), 1U);
    setScript("a", "interface x|X|GEV\ndevice x|1\ninterface y|Y|GEV\ndevice y|2\n");
    EXPECT_EQ(list().size(), 2U);
    ASSERT_TRUE(waitUntil([&] { return interfaces->calls() == "+"; }));
    setScript("a", "interface y|Y|GEV\ndevice y|2\n");
    EXPECT_EQ(list().size(), 1U);
    ASSERT_TRUE(waitUntil([&] { return interfaces->calls() == "+-"; }));
    for (int search = 0; search < 3; ++search)
        list();
    EXPECT_EQ(recorder->calls(), (Calls{"+a.cti/y/2", "-a.cti/x/1"})) << "each change is reported once";
}

TEST_F(DiscoveryTest, notificationsPauseAfterACameraListWasReturned)
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

TEST_F(DiscoveryTest, slowObserverDelaysNoCameraList)
{
    options.pollInterval = 1h; // The first poll would notify the observers of the first list.
    addProducer("a", cameras(1));
    start();
    list();
    std::atomic<bool> isReleased{false}, wasReleased{true};
    const auto slow = std::make_shared<CameraRecorder>();
    slow->onCall = [&] { wasReleased = wasReleased && waitUntil([&] { return isReleased.load(); }); };
    ASSERT_EQ(system->RegisterCameraListObserver(slow), CvxErrorSuccess);
    setScript("a", cameras(2));
    EXPECT_EQ(list().size(), 2U);
    EXPECT_TRUE(waitUntil([&] { return slow->calls().size() == 1; }));
    setScript("a", cameras(3));
    EXPECT_EQ(list().size(), 3U);
    isReleased = true;
    EXPECT_TRUE(waitUntil([&] { return slow->calls().size() == 2; }));
    stop();
    EXPECT_TRUE(wasReleased) << "the list was returned while the observer was being called";
}

TEST_F(DiscoveryTest, simultaneousSearchesShareOneSearch)
{
    options.pollInterval = 1h;
    options.searchTimeout = 1h;
    addProducer("a", "fault IFUpdateDeviceList slow 2000\n" + cameras(2));
    start();
    std::vector<std::thread> threads;
    for (int i = 0; i < 5; ++i)
        threads.emplace_back([this] { EXPECT_EQ(list().size(), 2U); });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_LE(countCalls("a", "IFUpdateDeviceList"), 2U) << "a thread may start after the first search";
}
