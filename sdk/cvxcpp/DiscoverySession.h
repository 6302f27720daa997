#pragma once

#include "sdk/cvxcpp/Announcer.h"
#include "sdk/cvxcpp/CameraList.h"
#include "sdk/cvxcpp/HostedProducer.h"
#include "sdk/cvxcpp/InterfaceSource.h"
#include "sdk/cvxcpp/ProducerView.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/cvxcpp/WakeEvent.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// The system between one start and its end: all producers, the thread that talks to their hosts and looks
/// for cameras, and what is known so far. Callers leave their wishes and wait for the thread to fulfil them.
class DiscoverySession final : public InterfaceSource, public std::enable_shared_from_this<DiscoverySession>
{
public:
    using Cameras = std::vector<std::shared_ptr<CameraObject>>;

    DiscoverySession(const SystemOptions &options, std::vector<std::string> ctiDirectories);
    ~DiscoverySession() override;

    void start(); ///< Throws std::system_error when there is no thread to have.
    void stop(); ///< Wakes all waiters, ends the hosts, and returns when no observer is called any more.

    /// Searches for cameras, unless that was just done, and gives them all; false when the session ends.
    bool searchCameras(std::shared_ptr<const Cameras> &cameras);

    RunningFlag runningFlag() const override { return m_isRunning; }
    CvxCPP::CvxError searchInterface(std::size_t producer, const std::string &interfaceId,
        std::shared_ptr<const ListedInterface> &record) override;

    Announcer &announcer() { return m_announcer; }

private:
    using Clock = HostedProducer::Clock;
    using Time = HostedProducer::Time;

    // On the session's thread.
    void run();
    void attempt(void (DiscoverySession::*step)()); ///< The search ends when it throws.
    void startProducers();
    void serveUntilStopped();
    void sendWishes(Time now, bool isLookDue);
    void waitForEvents(Time nextLook, std::vector<bool> &isReadable);
    void stepProducers(const std::vector<bool> &isReadable);
    std::vector<bool> chooseStarts(Time now) const;
    void publish(std::size_t index, HostedProducer::Event event, Time now);
    void markLate(Time now);
    void settleAll();
    void endProducers();
    void fail(const char *reason);

    // On the callers' threads, with the mutex held.
    std::shared_ptr<const Cameras> collectCameras();
    CameraListChange takeChanges();
    void hideRepeats();

    const SystemOptions m_options;
    const std::vector<std::string> m_ctiDirectories;
    const WakeEvent m_wakeEvent;
    std::vector<std::unique_ptr<HostedProducer>> m_producers; // Of the session's thread.
    std::thread m_thread;
    Announcer m_announcer;
    const std::shared_ptr<std::atomic<bool>> m_isRunning = std::make_shared<std::atomic<bool>>(true);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<ProducerView> m_views; // As m_producers.
    bool m_isReady = false; // The producers are known.
};
