#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/CameraListChange.h"
#include "sdk/cvxcpp/NotificationHold.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/// Calls the observers on a separate thread, so that they may block and may call the system.
class ObserverNotifier
{
public:
    /// Returns the changes since the previous call. The notifier calls this function on its own thread.
    using TakeChange = std::function<CameraListChange()>;

    explicit ObserverNotifier(TakeChange takeChange);
    ~ObserverNotifier();
    ObserverNotifier(const ObserverNotifier &) = delete;
    ObserverNotifier &operator=(const ObserverNotifier &) = delete;

    void start();

    /// Blocks until no observer is being called any more, and releases all observers.
    void stop();

    void addObserver(const std::shared_ptr<CvxCPP::ICameraListObserver> &observer);
    void addObserver(const std::shared_ptr<CvxCPP::IInterfaceListObserver> &observer);

    /// Schedules a notification. Call this function whenever there may be a change.
    void notify();

    /// Delays notifications until this time, or for the maximum delay of NotificationHold if that is
    /// shorter.
    void holdUntil(TimePoint time);

    /// Returns true if the calling thread is a thread that calls observers.
    static bool isCallingObservers();

private:
    void run();
    bool waitForChange();
    void notifyObservers(const CameraListChange &change);
    void notifyEach(
        const std::vector<std::shared_ptr<CameraObject>> &cameras, CvxCPP::UpdateTriggerType reason);
    void notifyEach(
        const std::vector<std::shared_ptr<InterfaceObject>> &interfaces, CvxCPP::UpdateTriggerType reason);

    template <typename Observer, typename Call>
    void callEach(const std::vector<std::shared_ptr<Observer>> &observers, const Call &call);

    const TakeChange m_takeChange;
    std::thread m_thread;

    std::mutex m_mutex; // Guards all members below.
    std::condition_variable m_wake;
    std::vector<std::shared_ptr<CvxCPP::ICameraListObserver>> m_cameraObservers;
    std::vector<std::shared_ptr<CvxCPP::IInterfaceListObserver>> m_interfaceObservers;
    NotificationHold m_hold;
    bool m_isStopping = false;
};
