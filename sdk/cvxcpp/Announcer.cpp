#include "sdk/cvxcpp/Announcer.h"

#include <algorithm>
#include <utility>

namespace {

constexpr auto LongestHold = std::chrono::milliseconds(500); // However often the program lists.

thread_local bool isAnnouncing = false;

} // namespace

Announcer::Announcer(TakeChanges takeChanges) : m_takeChanges(std::move(takeChanges)) { }

Announcer::~Announcer()
{
    stop();
}

void Announcer::start()
{
    m_thread = std::thread(&Announcer::run, this);
}

void Announcer::stop()
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
    const std::lock_guard lock(m_mutex); // Released before the observers, whose destructors are not ours.
    cameraObservers.swap(m_cameraObservers);
    interfaceObservers.swap(m_interfaceObservers);
}

void Announcer::addObserver(const std::shared_ptr<CvxCPP::ICameraListObserver> &observer)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isStopping)
        m_cameraObservers.push_back(observer);
}

void Announcer::addObserver(const std::shared_ptr<CvxCPP::IInterfaceListObserver> &observer)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isStopping)
        m_interfaceObservers.push_back(observer);
}

void Announcer::notify()
{
    {
        const std::lock_guard lock(m_mutex);
        if (!std::exchange(m_isNotified, true))
            m_notifiedAt = Clock::now();
    }
    m_wake.notify_all();
}

void Announcer::holdUntil(Clock::time_point time)
{
    const std::lock_guard lock(m_mutex);
    m_holdUntil = std::max(m_holdUntil, time); // A sleeper finds it when it wakes.
}

bool Announcer::isCallingObservers()
{
    return isAnnouncing;
}

void Announcer::run()
{
    isAnnouncing = true;
    while (waitForChanges()) {
        try {
            announce(m_takeChanges());
        } catch (const std::exception &) { // Out of memory: these changes stay untold.
        }
    }
}

bool Announcer::waitForChanges()
{
    std::unique_lock lock(m_mutex);
    while (!m_isStopping) {
        if (!m_isNotified)
            m_wake.wait(lock);
        else if (const auto until = std::min(m_holdUntil, m_notifiedAt + LongestHold); Clock::now() < until)
            m_wake.wait_until(lock, until);
        else
            break;
    }
    m_isNotified = false;
    return !m_isStopping;
}

void Announcer::announce(const CameraListChange &change)
{
    tell(change.goneCameras, CvxCPP::UpdateTriggerPluggedOut);
    tell(change.goneInterfaces, CvxCPP::UpdateTriggerPluggedOut);
    tell(change.newInterfaces, CvxCPP::UpdateTriggerPluggedIn);
    tell(change.newCameras, CvxCPP::UpdateTriggerPluggedIn);
}

void Announcer::tell(
    const std::vector<std::shared_ptr<CameraObject>> &cameras, CvxCPP::UpdateTriggerType reason)
{
    for (const auto &camera : cameras) {
        callEach(m_cameraObservers,
            [&](CvxCPP::ICameraListObserver &observer) { observer.CameraListChanged(camera, reason); });
    }
}

void Announcer::tell(
    const std::vector<std::shared_ptr<InterfaceObject>> &interfaces, CvxCPP::UpdateTriggerType reason)
{
    for (const auto &interface : interfaces) {
        callEach(m_interfaceObservers, [&](CvxCPP::IInterfaceListObserver &observer) {
            observer.InterfaceListChanged(interface, reason);
        });
    }
}

template <typename Observer, typename Call>
void Announcer::callEach(std::vector<std::shared_ptr<Observer>> &observers, const Call &call)
{
    std::unique_lock lock(m_mutex);
    for (std::size_t i = 0; i < observers.size() && !m_isStopping; ++i) {
        const auto observer = observers[i]; // A copy, since others may be added meanwhile.
        lock.unlock(); // Observers are called with no lock held.
        try {
            call(*observer);
        } catch (...) {
            // An observer's failure is its own.
        }
        lock.lock();
    }
}
