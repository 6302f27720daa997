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

/// The camera system between one start and its end. One thread runs the producer hosts and polls them for
/// cameras; callers on other threads leave requests for it and wait for the replies.
class DiscoverySession final : public InterfaceSource, public std::enable_shared_from_this<DiscoverySession>
{
public:
    using Cameras = CameraCatalogue::Cameras;

    DiscoverySession(const SystemOptions &options, std::vector<std::string> ctiDirectories);
    ~DiscoverySession() override;

    void start(); ///< Throws std::system_error if no thread can be started.
    void stop(); ///< Wakes all callers, ends the hosts, and blocks until no observer is being called.

    /// Searches for cameras, unless that was just done, and returns all that are known. Blocks for at most
    /// SystemOptions::searchTimeout. Returns null if the session ends.
    std::shared_ptr<const Cameras> searchCameras();

    RunningFlag runningFlag() const override { return m_isRunning; }
    SearchResult searchInterface(std::size_t producer, const std::string &interfaceId) override;

    ObserverNotifier &notifier() { return m_notifier; }

private:
    /// A producer that a caller waits for, and the number of its lists at the start of the wait.
    using AwaitedList = std::pair<std::size_t, unsigned>;

    // On the session's thread.
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

    // On the callers' threads, with the mutex held.
    std::vector<AwaitedList> requestLists();
    bool hasArrived(const AwaitedList &list) const;
    void endSearch(const std::vector<AwaitedList> &awaited);

    const SystemOptions m_options;
    const std::vector<std::string> m_ctiDirectories;
    const WakeEvent m_wakeEvent; // Wakes the session's thread for a request.
    std::thread m_thread;
    ObserverNotifier m_notifier;
    const std::shared_ptr<std::atomic<bool>> m_isRunning = std::make_shared<std::atomic<bool>>(true);

    std::mutex m_mutex; // Guards all members below, and changes of m_isRunning.
    std::condition_variable m_changed; // Wakes the callers for a reply.
    CameraCatalogue m_catalogue;
    std::vector<SearchState> m_searches; // One for each producer.
    bool m_areProducersKnown = false;
};
