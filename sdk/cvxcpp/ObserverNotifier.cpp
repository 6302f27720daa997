#include "sdk/cvxcpp/ObserverNotifier.h"

#include <exception>
#include <utility>

using namespace CvxCPP;

namespace {

thread_local bool isNotifierThread = false;

} // namespace

ObserverNotifier::ObserverNotifier(TakeChange takeChange) : m_takeChange(std::move(takeChange)) { }

ObserverNotifier::~ObserverNotifier()
{
    stop();
}

void ObserverNotifier::start()
{
    m_thread = std::thread(&ObserverNotifier::run, this);
}

void ObserverNotifier::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();

    decltype(m_cameraObservers) cameraObservers;
    decltype(m_interfaceObservers) interfaceObservers;
    const std::lock_guard lock(m_mutex); // The lock is released before the destructors of the observers run.
    cameraObservers.swap(m_cameraObservers);
    interfaceObservers.swap(m_interfaceObservers);
}

void ObserverNotifier::addObserver(const std::shared_ptr<ICameraListObserver> &observer)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isStopping)
        m_cameraObservers.push_back(observer);
}

void ObserverNotifier::addObserver(const std::shared_ptr<IInterfaceListObserver> &observer)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isStopping)
        m_interfaceObservers.push_back(observer);
}

void ObserverNotifier::notify()
{
    {
        const std::lock_guard lock(m_mutex);
        m_hold.changed(SteadyClock::now());
    }
    m_wake.notify_all();
}

void ObserverNotifier::holdUntil(TimePoint time)
{
    const std::lock_guard lock(m_mutex);
    m_hold.holdUntil(time); // The thread need not wake, because it checks the time again before it notifies.
}

bool ObserverNotifier::isCallingObservers()
{
    return isNotifierThread;
}

void ObserverNotifier::run()
{
    isNotifierThread = true;
    while (waitForChange()) {
        try {
            notifyObservers(m_takeChange());
        } catch (const std::exception &) { // No memory is left; observers are not notified of this change.
        }
    }
}

bool ObserverNotifier::waitForChange()
{
    std::unique_lock lock(m_mutex);
    while (!m_isStopping) {
        const auto dueTime = m_hold.dueTime();
        if (!dueTime)
            m_wake.wait(lock);
        else if (SteadyClock::now() < *dueTime)
            m_wake.wait_until(lock, *dueTime);
        else
            break;
    }
    m_hold.notified();
    return !m_isStopping;
}

void ObserverNotifier::notifyObservers(const CameraListChange &change)
{
    notifyEach(change.removedCameras, UpdateTriggerPluggedOut);
    notifyEach(change.removedInterfaces, UpdateTriggerPluggedOut);
    notifyEach(change.addedInterfaces, UpdateTriggerPluggedIn);
    notifyEach(change.addedCameras, UpdateTriggerPluggedIn);
}

void ObserverNotifier::notifyEach(
    const std::vector<std::shared_ptr<CameraObject>> &cameras, UpdateTriggerType reason)
{
    for (const auto &camera : cameras) {
        callEach(m_cameraObservers,
            [&](ICameraListObserver &observer) { observer.CameraListChanged(camera, reason); });
    }
}

void ObserverNotifier::notifyEach(
    const std::vector<std::shared_ptr<InterfaceObject>> &interfaces, UpdateTriggerType reason)
{
    for (const auto &interface : interfaces) {
        callEach(m_interfaceObservers,
            [&](IInterfaceListObserver &observer) { observer.InterfaceListChanged(interface, reason); });
    }
}

template <typename Observer, typename Call>
void ObserverNotifier::callEach(const std::vector<std::shared_ptr<Observer>> &observers, const Call &call)
{
    std::unique_lock lock(m_mutex);
    for (std::size_t i = 0; i < observers.size() && !m_isStopping; ++i) {
        const auto observer = observers[i]; // A copy, because an observer may be added during the call.
        lock.unlock();
        try {
            call(*observer);
        } catch (...) { // An exception of one observer must not prevent the calls of the other observers.
        }
        lock.lock();
    }
}
