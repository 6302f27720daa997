#include "sdk/device/DeviceNotifier.h"
#include "tests/device/DeviceTest.h"

#include <atomic>
#include <functional>
#include <future>
#include <stdexcept>
#include <thread>

using namespace CvxCPP;

namespace {

/// Calls a function for every changed list of nodes.
class CallingObserver : public IDeviceObserver
{
public:
    explicit CallingObserver(std::function<void()> call) : m_call(std::move(call)) { }

    void NodesChanged(const std::vector<std::string> &) override { m_call(); }
    void StateChanged(DeviceState, const std::string &) override { }

private:
    const std::function<void()> m_call;
};

class DeviceNotifierTest : public testing::Test
{
protected:
    std::shared_ptr<DeviceRecorder> recorder()
    {
        auto observer = std::make_shared<DeviceRecorder>();
        notifier.add(observer);
        return observer;
    }

    std::promise<void> called, mayReturn;
    /// An observer whose calls take until `mayReturn` is set.
    std::shared_ptr<IDeviceObserver> blockingObserver()
    {
        return std::make_shared<CallingObserver>([this, returned = mayReturn.get_future().share()] {
            called.set_value();
            returned.wait();
        });
    }

    DeviceNotifier notifier;
};

} // namespace

TEST_F(DeviceNotifierTest, observersAreCalledInTheOrderOfTheEvents)
{
    notifier.nodesChanged({"Nobody"});
    const auto first = recorder(), second = recorder();
    notifier.stateChanged(DeviceState::Lost, "lost");
    notifier.nodesChanged({"Width", "Height"});
    notifier.nodesChanged({});
    notifier.stateChanged(DeviceState::Open, "open");
    notifier.close();
    const Lines expected{"state 1 lost", "nodes Height Width", "state 0 open", "state 3 "};
    EXPECT_EQ(first->calls(), expected);
    EXPECT_EQ(second->calls(), expected);
}

TEST_F(DeviceNotifierTest, slowObserverGetsChangedNodesTogether)
{
    const auto slow = blockingObserver();
    notifier.add(slow);
    notifier.nodesChanged({"First"});
    called.get_future().wait();
    const auto observer = recorder();
    notifier.remove(observer);
    notifier.add(observer);
    for (int i = 0; i < 100; ++i)
        notifier.nodesChanged({"Width", "Height"});
    std::thread removing([&] { notifier.remove(slow); });
    mayReturn.set_value();
    removing.join();
    notifier.close();
    EXPECT_EQ(observer->calls(), (Lines{"nodes Height Width", "state 3 "}));
}

TEST_F(DeviceNotifierTest, removeWaitsForTheRunningCall)
{
    const auto observer = blockingObserver();
    notifier.add(observer);
    notifier.nodesChanged({"Width"});
    called.get_future().wait();
    std::atomic<bool> isReleased = false;
    std::thread releasing([&] {
        isReleased = true;
        mayReturn.set_value();
    });
    notifier.remove(observer);
    EXPECT_TRUE(isReleased);
    releasing.join();
    EXPECT_TRUE(waitUntil([&] { return observer.use_count() == 1; }));
    notifier.nodesChanged({"Height"}); // A second call would throw, because the promise is set.
    notifier.remove(observer);
}

TEST_F(DeviceNotifierTest, observerMayRemoveItself)
{
    std::atomic<int> calls = 0;
    std::shared_ptr<CallingObserver> observer;
    observer = std::make_shared<CallingObserver>([&] {
        ++calls;
        EXPECT_TRUE(notifier.isCalledByObserver() && DeviceNotifier::isCallingObservers());
        notifier.remove(observer);
    });
    notifier.add(observer);
    notifier.nodesChanged({"Width"});
    EXPECT_TRUE(waitUntil([&] { return calls == 1; }));
    notifier.nodesChanged({"Width"});
    const auto last = recorder();
    notifier.close();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(notifier.isCalledByObserver() || DeviceNotifier::isCallingObservers());
}

TEST_F(DeviceNotifierTest, exceptionOfAnObserverIsIgnored)
{
    notifier.add(std::make_shared<CallingObserver>([] { throw std::runtime_error("no"); }));
    const auto other = recorder();
    notifier.nodesChanged({"Width"});
    notifier.close();
    EXPECT_EQ(other->calls(), (Lines{"nodes Width", "state 3 "}));
}

TEST_F(DeviceNotifierTest, closeReleasesTheObservers)
{
    const auto observer = recorder();
    notifier.close();
    EXPECT_EQ(observer.use_count(), 1);
    notifier.close();
    notifier.add(observer);
    EXPECT_EQ(observer.use_count(), 1);
    notifier.nodesChanged({"Width"});
    EXPECT_EQ(observer->calls(), (Lines{"state 3 "}));
}

TEST_F(DeviceNotifierTest, observerMayDestroyTheNotifier)
{
    auto destroyed = std::make_unique<DeviceNotifier>();
    std::promise<void> done;
    destroyed->add(std::make_shared<CallingObserver>([&] {
        destroyed.reset();
        done.set_value();
    }));
    const auto last = std::make_shared<DeviceRecorder>();
    destroyed->add(last);
    destroyed->nodesChanged({"Width"});
    done.get_future().wait();
    EXPECT_TRUE(last->waitFor("state 3"));
    EXPECT_TRUE(waitUntil([&] { return last.use_count() == 1; }));
}
