#include "sdk/cvxcpp/ObserverNotifier.h"
#include "tests/sdk/support/ClientProcess.h"
#include "tests/sdk/support/OutOfDescriptors.h"
#include "tests/sdk/support/OutOfMemory.h"
#include "tests/sdk/support/SystemTest.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <sstream>
#include <thread>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace fs = std::filesystem;

using LifetimeTest = SystemTest;

TEST_F(LifetimeTest, NothingWorksBeforeTheStart)
{
    CameraSystem idle(options);
    unsigned count = 7;
    EXPECT_EQ(idle.GetCameras(nullptr, count), CvxErrorNotStarted);
    EXPECT_EQ(count, 7U);
    EXPECT_EQ(idle.RegisterCameraListObserver(std::make_shared<CameraRecorder>()), CvxErrorNotStarted);
    EXPECT_EQ(idle.RegisterInterfaceListObserver(std::make_shared<InterfaceRecorder>()), CvxErrorNotStarted);
    EXPECT_EQ(idle.Shutdown(), CvxErrorSuccess);
}

TEST_F(LifetimeTest, ASecondStartIsRefused)
{
    start();
    EXPECT_EQ(system->Startup(), CvxErrorAlreadyStarted);
    unsigned count = 0;
    EXPECT_EQ(system->GetCameras(nullptr, count), CvxErrorSuccess);
}

TEST_F(LifetimeTest, NullObserversAreRefused)
{
    start();
    EXPECT_EQ(system->RegisterCameraListObserver(nullptr), CvxErrorInvalidParameter);
    EXPECT_EQ(system->RegisterInterfaceListObserver(nullptr), CvxErrorInvalidParameter);
}

TEST_F(LifetimeTest, StartingNeedsTheHostProgram)
{
    const auto host = directory.path() / "Host";
    options.hostProgram = host.string();
    CameraSystem lacking(options);
    EXPECT_EQ(lacking.Startup(), CvxErrorHostMissing);
    EXPECT_EQ(lacking.Shutdown(), CvxErrorSuccess);
    fs::create_directory(host);
    EXPECT_EQ(lacking.Startup(), CvxErrorHostMissing);
    fs::remove(host);
    fs::copy_file(CVX_PRODUCER_HOST, host);
    fs::permissions(host, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(lacking.Startup(), CvxErrorHostMissing);
    fs::permissions(host, fs::perms::owner_all);
    EXPECT_EQ(lacking.Startup(), CvxErrorSuccess);
}

TEST_F(LifetimeTest, StartingNeedsADescriptor)
{
    CameraSystem starting(options);
    CvxError error = CvxErrorSuccess;
    {
        const OutOfDescriptors outOfDescriptors;
        error = starting.Startup();
    }
    EXPECT_EQ(error, CvxErrorFailed);
    EXPECT_EQ(starting.Startup(), CvxErrorSuccess);
}

TEST_F(LifetimeTest, TwoHundredRoundsLeaveNothing)
{
    addProducer("a", cameras(1));
    start();
    list();
    stop();
    const std::size_t descriptors = openDescriptors(), threads = threadCount();
    for (int round = 0; round < 200; ++round) {
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

TEST_F(LifetimeTest, AProgramMayIgnoreItsChildren)
{
    addProducer("a", cameras(1));
    const auto before = std::signal(SIGCHLD, SIG_IGN); // Nobody can wait for a child then.
    start();
    EXPECT_EQ(list().size(), 1U);
    ASSERT_EQ(kill(processesWith(ctiPath("a.cti").string()).front(), SIGKILL), 0);
    EXPECT_TRUE(waitUntil([this] { return countReports("cti/a.cti: ended") == 1; }));
    EXPECT_TRUE(waitUntil([this] { return list().size() == 1; }));
    EXPECT_LT(timeOf([this] { stop(); }), 1000ms);
    EXPECT_EQ(reports().size(), 1U);
    std::signal(SIGCHLD, before);
}

TEST_F(LifetimeTest, TheEndDoesNotWaitForAHangingDriver)
{
    addProducer("a", "fault GCInitLib hang\n");
    addProducer("b", "fault load hang\n");
    options.closeTimeout = 1500ms; // As in a program.
    start();
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "GCInitLib") == 1 && countCalls("b", "load") == 1; }));
    EXPECT_LT(timeOf([this] { stop(); }), 2000ms);
    EXPECT_EQ(countReports("and was killed"), 2U);
}

TEST_F(LifetimeTest, TheEndWakesThoseWhoWait)
{
    addProducer("a", "fault IFUpdateDeviceList hang\n" + cameras(1));
    options.searchTimeout = 1h;
    options.closeTimeout = 200ms;
    start();
    CvxError error = CvxErrorSuccess;
    std::thread waiter([&] {
        unsigned count = 0;
        error = system->GetCameras(nullptr, count);
    });
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") == 1; }));
    stop();
    waiter.join();
    EXPECT_EQ(error, CvxErrorNotStarted);
}

TEST_F(LifetimeTest, TheEndOfTheSystemWakesAnUpdateToo)
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
    CvxError error = CvxErrorSuccess;
    std::thread waiter([&] { error = update->RunCommand(); });
    EXPECT_TRUE(waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") > before; }));
    system.reset();
    waiter.join();
    EXPECT_EQ(error, CvxErrorNotStarted);
}

TEST_F(LifetimeTest, AnUpdateIsRefusedWhileTheSystemEnds)
{
    options.reuseTime = 1h;
    options.closeTimeout = 1s;
    addProducer("a", "fault GCCloseLib hang\n" + cameras(1));
    start();
    const auto update = feature(*interfaceOf(list(), 0), "DeviceUpdateList");
    EXPECT_EQ(update->RunCommand(), CvxErrorSuccess);
    std::thread end([this] { stop(); });
    EXPECT_TRUE(waitUntil([this] { return countCalls("a", "GCCloseLib") == 1; }));
    EXPECT_EQ(update->RunCommand(), CvxErrorNotStarted);
    end.join();
}

TEST_F(LifetimeTest, WithoutMemoryACallFailsAndTheSystemGoesOn)
{
    const std::string tooLongToNeedNone(100, 'x');
    addProducer(
        "a", "interface net0\ndevice net0|" + tooLongToNeedNone + "|V|M|S|N|" + tooLongToNeedNone + '\n');
    start();
    const Cameras found = list();
    const auto update = feature(*interfaceOf(found, 0), "DeviceUpdateList");
    const auto recorder = std::make_shared<CameraRecorder>();
    unsigned count = 7, size = 7;
    CvxTransportLayerType type = CvxTransportLayerUnknown;
    CvxError listError = CvxErrorSuccess, updateError = CvxErrorSuccess, observerError = CvxErrorSuccess,
             idError = CvxErrorSuccess, typeError = CvxErrorSuccess;
    {
        const OutOfMemory outOfMemory;
        listError = system->GetCameras(nullptr, count);
        updateError = update->RunCommand();
        observerError = system->RegisterCameraListObserver(recorder);
        idError = found[0]->GetID(nullptr, size, true);
        typeError = found[0]->GetInterfaceType(type);
    }
    EXPECT_EQ(listError, CvxErrorFailed);
    EXPECT_EQ(count, 7U);
    EXPECT_EQ(updateError, CvxErrorFailed);
    EXPECT_EQ(observerError, CvxErrorFailed);
    EXPECT_EQ(idError, CvxErrorFailed);
    EXPECT_EQ(typeError, CvxErrorFailed);
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(update->RunCommand(), CvxErrorSuccess);
}

TEST_F(LifetimeTest, ASearchThatFailsIsReportedAndEndsTheSystem)
{
    std::mutex mutex;
    std::vector<std::string> lines;
    options.report = [&](const std::string &line) {
        const std::lock_guard lock(mutex);
        lines.push_back(line);
        if (lines.size() == 1)
            throw std::bad_alloc(); // As any allocation of the search may.
    };
    addProducer("a", "fault load exit 9\n");
    start();
    unsigned count = 0;
    EXPECT_TRUE(waitUntil([&] { return system->GetCameras(nullptr, count) == CvxErrorNotStarted; }));
    stop();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines.back(), "the search for cameras ended: std::bad_alloc");
}

TEST_F(LifetimeTest, AProgramOutlivesASystemThatHasNoMemoryForItsLastWords)
{
    std::atomic<int> lines{0};
    options.report = [&](const std::string &) {
        ++lines;
        throw std::bad_alloc();
    };
    addProducer("a", "fault GCCloseLib exit 9\n" + cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    stop();
    EXPECT_EQ(lines, 2) << "how the producer ended, and how the search did";
    EXPECT_TRUE(childrenOf(getpid()).empty());
}

TEST(Announcer, DropsItsObserversWhenItStops)
{
    ObserverNotifier announcer([] { return CameraListChange(); });
    const auto cameraObserver = std::make_shared<CameraRecorder>();
    const auto interfaceObserver = std::make_shared<InterfaceRecorder>();
    announcer.addObserver(std::shared_ptr<ICameraListObserver>(cameraObserver));
    announcer.addObserver(std::shared_ptr<IInterfaceListObserver>(interfaceObserver));
    announcer.stop();
    EXPECT_EQ(cameraObserver.use_count(), 1);
    EXPECT_EQ(interfaceObserver.use_count(), 1);
}

TEST(Announcer, GoesOnAfterAChangeThatItHadNoMemoryFor)
{
    std::atomic<int> changes{0};
    ObserverNotifier announcer([&] {
        if (++changes == 1)
            throw std::bad_alloc();
        return CameraListChange();
    });
    announcer.start();
    EXPECT_TRUE(waitUntil([&] {
        announcer.notify();
        return changes > 1;
    }));
}

TEST_F(LifetimeTest, ObjectsMayOutliveTheSystem)
{
    addProducer("a", cameras(2));
    start();
    const Cameras found = list();
    const auto interface = interfaceOf(found, 0);
    const auto selector = feature(*interface, "DeviceSelector");
    const auto update = feature(*interface, "DeviceUpdateList");
    const auto id = feature(*interface, "DeviceID");

    const auto expectSilence = [&] {
        unsigned size = 0;
        long min = 0, max = 0;
        CvxTransportLayerType type = CvxTransportLayerUnknown;
        std::shared_ptr<Interface> other;
        std::shared_ptr<Feature> another;
        EXPECT_EQ(found[0]->GetID(nullptr, size, false), CvxErrorNotStarted);
        EXPECT_EQ(found[0]->GetModel(nullptr, size), CvxErrorNotStarted);
        EXPECT_EQ(found[0]->GetInterfaceType(type), CvxErrorNotStarted);
        EXPECT_EQ(found[0]->GetInterface(other), CvxErrorNotStarted);
        EXPECT_EQ(interface->GetFeatureByName("DeviceID", another), CvxErrorNotStarted);
        EXPECT_EQ(update->RunCommand(), CvxErrorNotStarted);
        EXPECT_EQ(selector->GetRange(min, max), CvxErrorNotStarted);
        EXPECT_EQ(selector->SetValue(0), CvxErrorNotStarted);
        EXPECT_EQ(id->GetValue(nullptr, size), CvxErrorNotStarted);
    };
    stop();
    expectSilence();
    ASSERT_EQ(system->Startup(), CvxErrorSuccess);
    EXPECT_EQ(list().size(), 2U);
    expectSilence();
    system.reset();
    expectSilence();
}

TEST_F(LifetimeTest, EverythingAtOnceIsSafe)
{
    addProducer("a", cameras(3));
    system = std::make_unique<CameraSystem>(options);
    std::atomic<bool> isOver{false};
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i) {
        threads.emplace_back([&] {
            while (!isOver) {
                Cameras found(3);
                unsigned count = 0;
                system->GetCameras(nullptr, count);
                count = 3;
                if (system->GetCameras(found.data(), count) != CvxErrorSuccess || count == 0)
                    continue;
                std::shared_ptr<Interface> interface;
                std::shared_ptr<Feature> update;
                if (found[0]->GetInterface(interface) == CvxErrorSuccess
                    && interface->GetFeatureByName("DeviceUpdateList", update) == CvxErrorSuccess)
                    update->RunCommand();
                extendedId(*found[0]);
            }
        });
    }
    threads.emplace_back([&] {
        while (!isOver)
            system->RegisterCameraListObserver(std::make_shared<CameraRecorder>());
    });
    threads.emplace_back([&] {
        while (!isOver)
            system->Shutdown();
    });
    EXPECT_TRUE(waitUntil([&] {
        system->Startup();
        return countCalls("a", "load") > 20;
    }));
    isOver = true;
    for (std::thread &thread : threads)
        thread.join();
}

TEST_F(LifetimeTest, NoObserverIsCalledAfterTheEnd)
{
    addProducer("a", cameras(1));
    for (int round = 0; round < 20; ++round) {
        start();
        std::atomic<bool> hasEnded{false};
        std::atomic<int> lateCalls{0};
        const auto recorder = std::make_shared<CameraRecorder>();
        recorder->onCall = [&] { lateCalls += hasEnded ? 1 : 0; };
        ASSERT_EQ(system->RegisterCameraListObserver(recorder), CvxErrorSuccess);
        setScript("a", cameras(1 + round % 3));
        waitUntil([&] { return countCalls("a", "IFUpdateDeviceList") > static_cast<std::size_t>(round); });
        stop();
        hasEnded = true;
        EXPECT_EQ(lateCalls, 0);
    }
}

TEST_F(LifetimeTest, AnEndFromACallbackIsRefused)
{
    addProducer("a", cameras(1));
    start();
    std::atomic<CvxError> error{CvxErrorSuccess};
    std::atomic<bool> isCalled{false};
    const auto recorder = std::make_shared<CameraRecorder>();
    recorder->onCall = [&] {
        error = system->Shutdown();
        isCalled = true;
    };
    ASSERT_EQ(system->RegisterCameraListObserver(recorder), CvxErrorSuccess);
    ASSERT_TRUE(waitUntil([&] { return isCalled.load(); }));
    EXPECT_EQ(error, CvxErrorFailed);
    EXPECT_EQ(list().size(), 1U) << "and the system goes on";
}

TEST_F(LifetimeTest, ACallbackMayStartAndEndWhileTheSystemEnds)
{
    addProducer("a", cameras(1));
    start();
    std::atomic<bool> isCalled{false};
    std::atomic<CvxError> startError{CvxErrorSuccess}, endError{CvxErrorSuccess};
    const auto recorder = std::make_shared<CameraRecorder>();
    recorder->onCall = [&] {
        isCalled = true;
        unsigned count = 0;
        waitUntil([&] { return system->GetCameras(nullptr, count) == CvxErrorNotStarted; });
        startError = system->Startup();
        endError = system->Shutdown();
    };
    ASSERT_EQ(system->RegisterCameraListObserver(recorder), CvxErrorSuccess);
    ASSERT_TRUE(waitUntil([&] { return isCalled.load(); }));
    stop();
    EXPECT_EQ(startError, CvxErrorAlreadyStarted);
    EXPECT_EQ(endError, CvxErrorFailed);
}

TEST_F(LifetimeTest, StartedToolsInheritNothing)
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
    EXPECT_LE(inherited, before) << "only what the test program has got itself";
}

TEST_F(LifetimeTest, AHostGetsNoneOfOurDescriptors)
{
    addProducer("a", cameras(1));
    const int ours = open("/dev/null", O_RDONLY); // Without close-on-exec.
    start();
    list();
    const auto hosts = processesWith(ctiPath("a.cti").string());
    ASSERT_EQ(hosts.size(), 1U);
    for (const auto &entry : fs::directory_iterator("/proc/" + std::to_string(hosts.front()) + "/fd"))
        EXPECT_LE(std::atoi(entry.path().filename().c_str()), 3);
    close(ours);
}

TEST_F(LifetimeTest, AHostHandlesSignalsPlainlyWhateverTheProgramDoes)
{
    addProducer("a", cameras(1));
    const auto before = std::signal(SIGUSR1, SIG_IGN);
    start();
    list();
    const auto hosts = processesWith(ctiPath("a.cti").string());
    ASSERT_EQ(hosts.size(), 1U);
    std::istringstream status(readFile("/proc/" + std::to_string(hosts.front()) + "/status"));
    std::signal(SIGUSR1, before);
    unsigned long long ignored = ~0ULL;
    for (std::string word; status >> word;) {
        if (word == "SigIgn:")
            status >> std::hex >> ignored;
    }
    EXPECT_EQ(ignored >> (SIGUSR1 - 1) & 1, 0U);
}

TEST_F(LifetimeTest, ASignalToItsThreadsChangesNothing)
{
    static std::atomic<int> handled{0};
    struct sigaction action
    {
    }, before{};
    action.sa_handler = [](int) { ++handled; }; // Calls that wait are not taken up again.
    sigaction(SIGUSR1, &action, &before);
    options.pollInterval = 1h; // They all wait.
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    for (const auto &entry : fs::directory_iterator("/proc/self/task"))
        tgkill(getpid(), std::atoi(entry.path().filename().c_str()), SIGUSR1);
    // This one and the library's two; a sanitizer's own thread takes no signals.
    EXPECT_TRUE(waitUntil([&] { return handled >= 3; }));
    EXPECT_EQ(list().size(), 1U);
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
    sigaction(SIGUSR1, &before, nullptr);
}

TEST_F(LifetimeTest, AHostThatIsStartedByHandLoadsNothing)
{
    addProducer("a", cameras(1));
    const std::pair<const char *, int> cases[] = {{"3<&-", 64}, {"3</dev/null", 1}};
    for (const auto &[redirection, status] : cases) {
        ClientProcess shell("/bin/sh",
            {"-c", std::string(R"(exec "$0" "$1" )") + redirection, CVX_PRODUCER_HOST,
                ctiPath("a.cti").string()});
        EXPECT_EQ(shell.exitStatus(), status) << redirection;
    }
    EXPECT_TRUE(callsOf("a").empty());
}
