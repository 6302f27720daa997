#include "sdk/cvxcpp/ObserverNotifier.h"
#include "sdk/cvxcpp/CameraCatalogue.h"
#include "tests/sdk/support/FakeSource.h"
#include "tests/sdk/support/Observers.h"
#include "tests/sdk/support/Waiting.h"

#include <atomic>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace std::chrono_literals;

using Calls = std::vector<std::string>;

class ObserverNotifierTest : public testing::Test
{
protected:
    /// Replaces the previous interface by one that contains only this camera, and notifies the observers.
    void replaceCamera(const std::string &id)
    {
        {
            const std::lock_guard lock(mutex);
            catalogue.replaceInterfaces(0, {{1, "net-" + id, "", "", {{id, "", "", "", "", ""}}}},
                SearchKind::Background, TimePoint());
        }
        notifier.notify();
    }

    ObserverNotifierTest()
    {
        catalogue.addProducer(source, "a.cti");
        catalogue.reportChangesFromNowOn(0);
        notifier.addObserver(std::shared_ptr<CvxCPP::ICameraListObserver>(cameras));
        notifier.addObserver(std::shared_ptr<CvxCPP::IInterfaceListObserver>(interfaces));
    }

    std::shared_ptr<FakeSource> source = std::make_shared<FakeSource>();
    std::shared_ptr<CameraRecorder> cameras = std::make_shared<CameraRecorder>();
    std::shared_ptr<InterfaceRecorder> interfaces = std::make_shared<InterfaceRecorder>();
    std::mutex mutex;
    CameraCatalogue catalogue;
    ObserverNotifier notifier{[this] {
        const std::lock_guard lock(mutex);
        return catalogue.takeChange();
    }};
};

TEST_F(ObserverNotifierTest, everyObserverIsCalledEvenIfOneThrows)
{
    const auto other = std::make_shared<CameraRecorder>();
    notifier.addObserver(std::shared_ptr<CvxCPP::ICameraListObserver>(other));
    cameras->onCall = [] { throw std::runtime_error("observer"); };
    notifier.start();
    replaceCamera("1");
    ASSERT_TRUE(waitUntil([&] { return other->calls().size() == 1; }));
    replaceCamera("2");
    ASSERT_TRUE(waitUntil([&] { return other->calls().size() == 3; }));
    EXPECT_EQ(cameras->calls(), (Calls{"+a.cti/net-1/1", "-a.cti/net-1/1", "+a.cti/net-2/2"}));
    EXPECT_EQ(interfaces->calls(), "+-+");
}

TEST_F(ObserverNotifierTest, stopWaitsForARunningCall)
{
    std::atomic<bool> isCalled{false}, isStopped{false}, wasCallAfterStop{false};
    cameras->onCall = [&] {
        EXPECT_TRUE(ObserverNotifier::isCallingObservers());
        isCalled = true;
        for (int i = 0; i < 20; ++i) // Allows time for a stop() that does not wait.
            std::this_thread::sleep_for(5ms);
        wasCallAfterStop = isStopped.load();
    };
    const auto second = std::make_shared<CameraRecorder>();
    notifier.addObserver(std::shared_ptr<CvxCPP::ICameraListObserver>(second));
    notifier.start();
    replaceCamera("1");
    ASSERT_TRUE(waitUntil([&] { return isCalled.load(); }));
    notifier.stop();
    isStopped = true;
    EXPECT_FALSE(wasCallAfterStop);
    EXPECT_EQ(second->calls(), Calls{}) << "no observer is called after stop() was called";
    EXPECT_FALSE(ObserverNotifier::isCallingObservers());
    notifier.addObserver(std::shared_ptr<CvxCPP::ICameraListObserver>(cameras));
    notifier.addObserver(std::shared_ptr<CvxCPP::IInterfaceListObserver>(interfaces));
    EXPECT_EQ(cameras.use_count(), 1);
    EXPECT_EQ(interfaces.use_count(), 1);
}
