// The camera system from its start to its end.

#include "tests/sdk/support/SystemTest.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace fs = std::filesystem;

using CameraSystemTest = SystemTest;

TEST_F(CameraSystemTest, nothingWorksBeforeTheStart)
{
    CameraSystem idle(options);
    unsigned count = 7;
    EXPECT_EQ(idle.GetCameras(nullptr, count), CvxErrorNotStarted);
    EXPECT_EQ(count, 7U);
    EXPECT_EQ(idle.RegisterCameraListObserver(std::make_shared<CameraRecorder>()), CvxErrorNotStarted);
    EXPECT_EQ(idle.RegisterInterfaceListObserver(std::make_shared<InterfaceRecorder>()), CvxErrorNotStarted);
    EXPECT_EQ(idle.Shutdown(), CvxErrorSuccess);
}

TEST_F(CameraSystemTest, secondStartAndNullObserversAreRefused)
{
    start();
    EXPECT_EQ(system->Startup(), CvxErrorAlreadyStarted);
    EXPECT_EQ(system->RegisterCameraListObserver(nullptr), CvxErrorInvalidParameter);
    EXPECT_EQ(system->RegisterInterfaceListObserver(nullptr), CvxErrorInvalidParameter);
}

TEST_F(CameraSystemTest, startNeedsTheHostProgram)
{
    const auto host = directory.path() / "Host";
    options.hostProgram = host.string();
    CameraSystem starting(options);
    EXPECT_EQ(starting.Startup(), CvxErrorHostMissing);
    fs::copy_file(CVX_PRODUCER_HOST, host);
    fs::permissions(host, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(starting.Startup(), CvxErrorHostMissing);
    fs::permissions(host, fs::perms::owner_all);
    EXPECT_EQ(starting.Startup(), CvxErrorSuccess);
}

TEST_F(CameraSystemTest, manyRoundsLeaveNothing)
{
    addProducer("a", cameras(1));
    start();
    list();
    stop();
    const std::size_t descriptors = openDescriptors(), threads = threadCount();
    for (int round = 0; round < 50; ++round) {
        ASSERT_EQ(system->Startup(), CvxErrorSuccess);
        if (round % 2 == 0) {
            ASSERT_EQ(list().size(), 1U);
        }
        ASSERT_EQ(system->Shutdown(), CvxErrorSuccess);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_EQ(threadCount(), threads);
    EXPECT_TRUE(childrenOf(getpid()).empty());
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(CameraSystemTest, endKillsHangingHostsAndReportsThem)
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

TEST_F(CameraSystemTest, endWakesCallersThatWait)
{
    options.pollInterval = 1h;
    options.searchTimeout = 1h;
    options.replyTimeout = 1h;
    options.closeTimeout = 200ms;
    addProducer("a", cameras(1));
    start();
    const auto update = feature(*interfaceOf(list(), 0), "DeviceUpdateList");
    const std::size_t before = countCalls("a", "IFUpdateDeviceList");
    setScript("a", "fault IFUpdateDeviceList hang\n" + cameras(1));
    CvxError listError = CvxErrorSuccess, updateError = CvxErrorSuccess;
    std::thread updater([&] { updateError = update->RunCommand(); });
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") > before; }));
    std::thread lister([&] {
        unsigned count = 0;
        listError = system->GetCameras(nullptr, count);
    });
    stop();
    updater.join();
    lister.join();
    EXPECT_EQ(updateError, CvxErrorNotStarted);
    EXPECT_EQ(listError, CvxErrorNotStarted);
}

TEST_F(CameraSystemTest, sessionThatFailsIsReportedAndEnded)
{
    std::mutex mutex;
    std::vector<std::string> lines;
    options.report = [&](const std::string &line) {
        const std::lock_guard lock(mutex);
        lines.push_back(line);
        if (lines.size() == 1)
            throw std::bad_alloc(); // Like any allocation of the session.
    };
    addProducer("a", "fault load exit 9\n");
    start();
    unsigned count = 0;
    EXPECT_TRUE(waitUntil([&] { return system->GetCameras(nullptr, count) == CvxErrorNotStarted; }));
    stop();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines.back(), "discovery ended: std::bad_alloc");
}

TEST_F(CameraSystemTest, callsFromAllThreadsAtOnceAreSafe)
{
    addProducer("a", cameras(3));
    system = std::make_unique<CameraSystem>(options);
    std::atomic<bool> isOver{false};
    std::vector<std::thread> threads;
    const auto repeat = [&](auto call) {
        threads.emplace_back([&isOver, call] {
            while (!isOver)
                call();
        });
    };
    const auto listAndUpdate = [this] {
        Cameras found(3);
        unsigned count = 0;
        system->GetCameras(nullptr, count);
        count = 3;
        if (system->GetCameras(found.data(), count) != CvxErrorSuccess || count == 0)
            return;
        std::shared_ptr<Interface> interface;
        std::shared_ptr<Feature> update;
        if (found[0]->GetInterface(interface) == CvxErrorSuccess
            && interface->GetFeatureByName("DeviceUpdateList", update) == CvxErrorSuccess)
            update->RunCommand();
        extendedId(*found[0]);
    };
    repeat(listAndUpdate);
    repeat(listAndUpdate);
    repeat([this] { system->RegisterCameraListObserver(std::make_shared<CameraRecorder>()); });
    repeat([this] { system->Shutdown(); });
    EXPECT_TRUE(waitUntil([&] {
        system->Startup();
        return countCalls("a", "load") > 20;
    }));
    isOver = true;
    for (std::thread &thread : threads)
        thread.join();
}

TEST_F(CameraSystemTest, callbackCannotStartOrEndTheSystem)
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
        startError = system->Startup(); // While the system ends, which waits for this call.
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

TEST_F(CameraSystemTest, startedProgramsInheritNothing)
{
    addProducer("a", cameras(1));
    const std::size_t before = openDescriptors();
    start();
    list();
    EXPECT_GT(openDescriptors(), before);
    std::size_t inherited = 0;
    for (const auto &entry : fs::directory_iterator("/proc/self/fd")) {
        const int flags = fcntl(std::atoi(entry.path().filename().c_str()), F_GETFD);
        inherited += flags >= 0 && (flags & FD_CLOEXEC) == 0 ? 1 : 0;
    }
    EXPECT_LE(inherited, before) << "only descriptors of the test program itself";
}

TEST_F(CameraSystemTest, signalToItsThreadsChangesNothing)
{
    static std::atomic<int> handled{0};
    struct sigaction action
    {
    }, before{};
    action.sa_handler = [](int) { ++handled; }; // Without SA_RESTART.
    sigaction(SIGUSR1, &action, &before);
    options.pollInterval = 1h; // All threads wait.
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    for (const auto &entry : fs::directory_iterator("/proc/self/task"))
        tgkill(getpid(), std::atoi(entry.path().filename().c_str()), SIGUSR1);
    // This thread and the library's two; a sanitizer's own thread takes no signals.
    EXPECT_TRUE(waitUntil([&] { return handled >= 3; }));
    EXPECT_EQ(list().size(), 1U);
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
    sigaction(SIGUSR1, &before, nullptr);
}
