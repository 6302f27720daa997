#pragma once

#include "sdk/cvxcpp/CameraCatalogue.h"
#include "sdk/cvxcpp/HostPool.h"
#include "sdk/cvxcpp/InterfaceSource.h"
#include "sdk/cvxcpp/ObserverNotifier.h"
#include "sdk/cvxcpp/SearchState.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/device/OpenDevices.h"
#include "sdk/process/WakeEvent.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// The camera system between one Startup() and the next Shutdown(). One thread runs the producer hosts and
/// polls them for cameras. The callers on other threads leave requests for this thread and wait for the
/// replies.
class DiscoverySession final : public InterfaceSource, public std::enable_shared_from_this<DiscoverySession>
{
public:
    using Cameras = CameraCatalogue::Cameras;

    DiscoverySession(const SystemOptions &options, std::vector<std::string> ctiDirectories);
    ~DiscoverySession() override;

    void start(); ///< Throws std::system_error if no thread can be started.
    /// Wakes all callers, closes all devices, ends the hosts, and blocks until no observer is being called.
    void stop();

    /// Starts a short search, unless the last list is very new or a search is running, and returns all known
    /// cameras. Blocks for at most SystemOptions::refreshTimeout if the background searches have kept the
    /// list current; otherwise, as for the first list, for at most SystemOptions::searchTimeout. Returns null
    /// if the session ends.
    std::shared_ptr<const Cameras> searchCameras();

    RunningFlag runningFlag() const override { return m_isRunning; }
    SearchResult searchInterface(std::size_t producer, const std::string &interfaceId) override;
    CvxCPP::CvxResult openDevice(std::size_t producer, const std::string &interfaceId,
        const DeviceRecord &device, CvxCPP::CvxAccess access,
        std::shared_ptr<CvxCPP::Device> &opened) override;

    ObserverNotifier &notifier() { return m_notifier; }

private:
    /// A producer that a caller waits for, and the number of camera lists that had arrived from it when the
    /// wait started.
    struct AwaitedList
    {
        std::size_t producer;
        unsigned listCount;
    };
    struct AwaitedLists
    {
        std::vector<AwaitedList> current; ///< The lists of these producers are current.
        std::vector<AwaitedList> missing; ///< The lists of these producers are missing or outdated.
    };

    // These functions run on the session's thread; stop() calls markEnded() too.
    void run();
    void discover();
    std::vector<std::string> findProducerPaths();
    void publish(ProducerSupervisor &host, std::size_t producer, ProducerSupervisor::Event &event);
    bool updateCatalogue(std::size_t producer, ProducerSupervisor::Event &event);
    void beginPoll();
    void noticeLateReplies(const HostPool &pool);
    /// Returns the time at which the next pending search may start.
    TimePoint sendRequests(HostPool &pool);
    void sendPendingRequest(ProducerSupervisor &host, std::size_t producer, TimePoint now);
    void markEnded();

    // These functions run on the callers' threads while the mutex is held.
    /// Waits until the condition is met or the session ends. Returns false at the deadline.
    template <typename Condition>
    bool await(std::unique_lock<std::mutex> &lock, TimePoint deadline, Condition isMet);
    AwaitedLists requestLists();
    bool hasArrived(const AwaitedList &list) const;
    bool haveArrived(const std::vector<AwaitedList> &lists) const;
    void endSearch(const std::vector<AwaitedList> &missing);

    const SystemOptions m_options;
    const std::vector<std::string> m_ctiDirectories;
    const WakeEvent m_wakeEvent; // Wakes the session's thread when there is a request or the session ends.
    std::thread m_thread;
    ObserverNotifier m_notifier;
    OpenDevices m_devices;
    const std::shared_ptr<std::atomic<bool>> m_isRunning = std::make_shared<std::atomic<bool>>(true);

    std::mutex m_mutex; // Guards all members below, and changes of m_isRunning.
    std::condition_variable m_changed; // Wakes the waiting callers when a reply arrives.
    CameraCatalogue m_catalogue;
    std::vector<std::string> m_producerPaths; // Contains one element for each producer.
    std::vector<SearchState> m_searches; // Contains one element for each producer.
    unsigned m_stepCount = 0; // Number of times that the thread has read all messages of the hosts.
    bool m_areProducersKnown = false;
};
