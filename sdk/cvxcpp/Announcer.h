#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/CameraList.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/// Tells the observers what came and went, on a thread of its own: they may take their time and may call the
/// system.
class Announcer
{
public:
    using Clock = std::chrono::steady_clock;

    /// Gives what came and went since the last call; called on the announcer's thread.
    using TakeChanges = std::function<CameraListChange()>;

    explicit Announcer(TakeChanges takeChanges);
    ~Announcer();
    Announcer(const Announcer &) = delete;
    Announcer &operator=(const Announcer &) = delete;

    void start();

    /// Drops the observers and returns when none is being called any more.
    void stop();

    void addObserver(const std::shared_ptr<CvxCPP::ICameraListObserver> &observer);
    void addObserver(const std::shared_ptr<CvxCPP::IInterfaceListObserver> &observer);

    /// There may be changes.
    void notify();

    /// Announces nothing before that time, but holds no change back for more than half a second. A program
    /// that is just taking a list would miss an announcement: it would answer it with the list that it is
    /// about to have.
    void holdUntil(Clock::time_point time);

    /// The calling thread is one that calls observers.
    static bool isCallingObservers();

private:
    void run();
    bool waitForChanges();
    void announce(const CameraListChange &change);
    void tell(const std::vector<std::shared_ptr<CameraObject>> &cameras, CvxCPP::UpdateTriggerType reason);
    void tell(
        const std::vector<std::shared_ptr<InterfaceObject>> &interfaces, CvxCPP::UpdateTriggerType reason);

    template <typename Observer, typename Call>
    void callEach(std::vector<std::shared_ptr<Observer>> &observers, const Call &call);

    const TakeChanges m_takeChanges;
    std::thread m_thread;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::vector<std::shared_ptr<CvxCPP::ICameraListObserver>> m_cameraObservers;
    std::vector<std::shared_ptr<CvxCPP::IInterfaceListObserver>> m_interfaceObservers;
    Clock::time_point m_holdUntil{};
    bool m_isNotified = false;
    Clock::time_point m_notifiedAt{}; // While that is true.
    bool m_isStopping = false;
};
