#pragma once

#include "sdk/cvxcpp/CameraCatalogue.h"
#include "sdk/cvxcpp/HostPool.h"
#include "sdk/cvxcpp/InterfaceSource.h"
#include "sdk/cvxcpp/ObserverNotifier.h"
#include "sdk/cvxcpp/SearchState.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/cvxcpp/WakeEvent.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
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
    void stop(); ///< Wakes all callers, ends the hosts, and blocks until no observer is being called.

    /// Searches for cameras, unless the last search has ended very recently, and returns all known cameras.
    /// Blocks for at most SystemOptions::searchTimeout. Returns null if the session ends.
    std::shared_ptr<const Cameras> searchCameras();

    RunningFlag runningFlag() const override { return m_isRunning; }
    SearchResult searchInterface(std::size_t producer, const std::string &interfaceId) override;

    ObserverNotifier &notifier() { return m_notifier; }

private:
    /// The index of a producer that a caller waits for, and the number of camera lists that had arrived
    /// from this producer when the wait started.
    using AwaitedList = std::pair<std::size_t, unsigned>;

    // These functions run on the session's thread; stop() calls markEnded() too.
    void run();
    void discover();
    std::vector<std::string> findProducerPaths();
    void publish(ProducerSupervisor &host, std::size_t producer, ProducerSupervisor::Event &event);
    bool updateCatalogue(std::size_t producer, ProducerSupervisor::Event &event);
    void announceAll();
    void noticeLateReplies(const HostPool &pool);
    void sendRequests(HostPool &pool, bool isPollDue);
    bool sendPendingRequest(ProducerSupervisor &host, std::size_t producer, TimePoint now);
    void markEnded();

    // These functions run on the callers' threads while the mutex is held.
    std::vector<AwaitedList> requestLists();
    bool hasArrived(const AwaitedList &list) const;
    void endSearch(const std::vector<AwaitedList> &awaited);

    const SystemOptions m_options;
    const std::vector<std::string> m_ctiDirectories;
    const WakeEvent m_wakeEvent; // Wakes the session's thread when there is a request or the session ends.
    std::thread m_thread;
    ObserverNotifier m_notifier;
    const std::shared_ptr<std::atomic<bool>> m_isRunning = std::make_shared<std::atomic<bool>>(true);

    std::mutex m_mutex; // Guards all members below, and changes of m_isRunning.
    std::condition_variable m_changed; // Wakes the waiting callers when a reply arrives.
    CameraCatalogue m_catalogue;
    std::vector<SearchState> m_searches; // Contains one element for each producer.
    bool m_areProducersKnown = false;
};
