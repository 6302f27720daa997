// Tests the startup and the shutdown of the camera system.

#include "tests/sdk/support/SystemTest.h"

#include <atomic>
#include <functional>
#include <thread>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace fs = std::filesystem;

using CameraSystemTest = SystemTest;

TEST_F(CameraSystemTest, startupNeedsAnExecutableHostProgram)
{
    const auto host = directory.path() / "Host";
    options.hostProgram = host.string();
    CameraSystem starting(options);
    unsigned count = 7;
    EXPECT_EQ(starting.Startup(), CvxErrorHostMissing);
    EXPECT_EQ(starting.GetCameras(nullptr, count), CvxErrorNotStarted);
    EXPECT_EQ(count, 7U);
    EXPECT_EQ(starting.RegisterCameraListObserver(std::make_shared<CameraRecorder>()), CvxErrorNotStarted);
    EXPECT_EQ(starting.Shutdown(), CvxErrorSuccess);
    fs::copy_file(CVX_PRODUCER_HOST, host);
    fs::permissions(host, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(starting.Startup(), CvxErrorHostMissing);
    fs::permissions(host, fs::perms::owner_all);
    EXPECT_EQ(starting.Startup(), CvxErrorSuccess);
    EXPECT_EQ(starting.Startup(), CvxErrorAlreadyStarted);
    EXPECT_EQ(starting.RegisterCameraListObserver(nullptr), CvxErrorInvalidParameter);
    EXPECT_EQ(starting.RegisterInterfaceListObserver(nullptr), CvxErrorInvalidParameter);
}

TEST_F(CameraSystemTest, repeatedStartupAndShutdownLeakNothing)
{
    const std::size_t threads = threadCount();
    addProducer("a", cameras(1));
    start();
    list();
    stop();
    const std::size_t descriptors = openDescriptors();
    for (int round = 0; round < 50; ++round) {
        ASSERT_EQ(system->Startup(), CvxErrorSuccess);
        if (round % 2 == 0) {
            ASSERT_EQ(list().size(), 1U);
        }
        ASSERT_EQ(system->Shutdown(), CvxErrorSuccess);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_TRUE(waitUntil([&] { return threadCount() == threads; }))
        << "the kernel removes threads a little later";
    EXPECT_TRUE(childrenOf(getpid()).empty());
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(CameraSystemTest, shutdownReportsHostsThatDoNotCloseProperly)
{
    addProducer("a", "fault GCInitLib hang\n");
    addProducer("b", "fault GCCloseLib hang\ninterface n|N|GEV\ndevice n|1|V|M|S|N|GEV\n");
    addProducer("c", "fault GCCloseLib exit 9\n");
    options.pollInterval = 1h;
    options.closeTimeout = 500ms;
    options.searchTimeout = 1s;
    start();
    EXPECT_EQ(list().size(), 1U);
    stop();
    EXPECT_EQ(countReports("cti/a.cti: had not answered for "), 1U);
    EXPECT_EQ(countReports("cti/b.cti: did not end within 0.5 s and was killed"), 1U);
    EXPECT_EQ(countReports("cti/c.cti: exited with code 9 while it was closed"), 1U);
    EXPECT_EQ(reports().size(), 3U) << testing::PrintToString(reports());
}

TEST_F(CameraSystemTest, shutdownWakesWaitingCallers)
{
    options.pollInterval = 1h;
    options.searchTimeout = 1h;
    options.replyTimeout = 1h;
    options.closeTimeout = 200ms;
    addProducer("a", "fault load hang\n");
    start();
    CvxError listError = CvxErrorSuccess, updateError = CvxErrorSuccess;
    std::thread lister([&] {
        unsigned count = 0;
        listError = system->GetCameras(nullptr, count);
    });
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "load") == 1; }));
    stop();
    lister.join();
    EXPECT_EQ(listError, CvxErrorNotStarted);

    setScript("a", cameras(1));
    start();
    const auto update = feature(*interfaceOf(list(), 0), "DeviceUpdateList");
    const std::size_t before = countCalls("a", "IFUpdateDeviceList");
    setScript("a", "fault IFUpdateDeviceList hang\n" + cameras(1));
    std::thread updater([&] { updateError = update->RunCommand(); });
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") > before; }));
    stop();
    updater.join();
    EXPECT_EQ(updateError, CvxErrorNotStarted);
}

TEST_F(CameraSystemTest, exceptionEndsTheSessionWithAReport)
{
    std::mutex mutex;
    std::vector<std::string> lines;
    options.report = [&](const std::string &line) {
        const std::lock_guard lock(mutex);
        lines.push_back(line);
        if (lines.size() == 1)
            throw std::bad_alloc(); // Stands for any failing allocation of the session.
    };
    addProducer("a", "fault load exit 9\n");
    start();
    unsigned count = 0;
    EXPECT_TRUE(waitUntil([&] { return system->GetCameras(nullptr, count) == CvxErrorNotStarted; }));
    stop();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines.back(), "discovery ended: std::bad_alloc");
}

TEST_F(CameraSystemTest, concurrentCallsAreSafe)
{
    addProducer("a", cameras(3));
    system = std::make_unique<CameraSystem>(options);
    std::atomic<bool> isOver{false};
    const auto listAndUpdate = [this] {
        std::shared_ptr<Camera> found;
        std::shared_ptr<Interface> interface;
        std::shared_ptr<Feature> update;
        unsigned count = 1;
        system->GetCameras(nullptr, count);
        if (system->GetCameras(&found, count = 1) == CvxErrorSuccess && count == 1
            && found->GetInterface(interface) == CvxErrorSuccess
            && interface->GetFeatureByName("DeviceUpdateList", update) == CvxErrorSuccess)
            update->RunCommand();
    };
    const std::function<void()> calls[] = {listAndUpdate, listAndUpdate, [this] { system->Shutdown(); },
        [this] { system->RegisterCameraListObserver(std::make_shared<CameraRecorder>()); }};
    std::vector<std::thread> threads;
    for (const auto &call : calls) {
        threads.emplace_back([&] {
            while (!isOver)
                call();
        });
    }
    EXPECT_TRUE(waitUntil([&] {
        system->Startup();
        return countCalls("a", "load") > 20;
    }));
    isOver = true;
    for (std::thread &thread : threads)
        thread.join();
}

TEST_F(CameraSystemTest, callbackCannotStartOrShutDownTheSystem)
{
    addProducer("a", cameras(1));
    start();
    std::atomic<bool> isCalled{false};
    std::atomic<CvxError> endError{CvxErrorSuccess}, startError{CvxErrorSuccess}, lateError{CvxErrorSuccess};
    const auto recorder = std::make_shared<CameraRecorder>();
    recorder->onCall = [&] {
        endError = system->Shutdown();
        isCalled = true;
        unsigned count = 0;
        waitUntil([&] { return system->GetCameras(nullptr, count) == CvxErrorNotStarted; });
        startError = system->Startup(); // Shutdown() is waiting for this callback.
        lateError = system->Shutdown();
    };
    ASSERT_EQ(system->RegisterCameraListObserver(recorder), CvxErrorSuccess);
    ASSERT_TRUE(waitUntil([&] { return isCalled.load(); }));
    EXPECT_EQ(endError, CvxErrorFailed);
    EXPECT_EQ(list().size(), 1U) << "the system continues";
    stop();
    EXPECT_EQ(startError, CvxErrorAlreadyStarted);
    EXPECT_EQ(lateError, CvxErrorFailed);
}

TEST_F(CameraSystemTest, startupWaitsForNoProducer)
{
    options.searchTimeout = 1h;
    options.replyTimeout = 15s;
    options.closeTimeout = 100ms;
    addProducer("a", "fault load hang\n");
    start();
    EXPECT_TRUE(reports().empty()) << "the host is killed and reported only after its reply timeout";
    ASSERT_TRUE(waitUntil([this] { return countCalls("a", "load") == 1; }));
}
