#include "sdk/cvxcpp/CameraSystem.h"

#include "sdk/cvxcpp/ApiBoundary.h"
#include "sdk/cvxcpp/CtiSearchPath.h"
#include "sdk/device/DeviceNotifier.h"
#include "sdk/process/ExecutableFile.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

using namespace CvxCPP;

namespace {

std::vector<std::string> ctiDirectories(const SystemOptions &options)
{
    auto directories = configuredCtiDirectories(options.installRoot, options.configurationFile);
    for (std::string &directory : searchPathDirectories(std::getenv("GENICAM_GENTL64_PATH")))
        directories.push_back(std::move(directory));
    return directories;
}

/// Returns true if an observer makes the call. Shutdown() waits for all observers.
bool isCallingObservers()
{
    return ObserverNotifier::isCallingObservers() || DeviceNotifier::isCallingObservers();
}

} // namespace

CameraSystem::CameraSystem(SystemOptions options) : m_options(std::move(options)) { }

CameraSystem::~CameraSystem()
{
    CameraSystem::Shutdown();
}

CvxError CameraSystem::Startup()
{
    // An observer must not wait for a running Shutdown(), because Shutdown() waits for the observer.
    if (isCallingObservers())
        return CvxErrorAlreadyStarted;
    const std::lock_guard lifeLock(m_lifeMutex);
    if (session())
        return CvxErrorAlreadyStarted;
    if (!isExecutableFile(m_options.hostProgram))
        return CvxErrorHostMissing;
    return guarded([this] {
        startSession();
        return CvxErrorSuccess;
    });
}

void CameraSystem::startSession()
{
    auto session = std::make_shared<DiscoverySession>(m_options, ctiDirectories(m_options));
    session->start();
    const std::lock_guard lock(m_mutex);
    m_session = std::move(session);
    m_found = nullptr;
}

CvxError CameraSystem::Shutdown()
{
    if (isCallingObservers())
        return CvxErrorFailed; // Shutdown() would wait for its own caller.
    const std::lock_guard lifeLock(m_lifeMutex);
    std::shared_ptr<DiscoverySession> ending;
    // The objects are destroyed after the lock is released.
    std::shared_ptr<const DiscoverySession::Cameras> found;
    {
        const std::lock_guard lock(m_mutex);
        ending.swap(m_session);
        found.swap(m_found);
    }
    if (ending)
        ending->stop();
    return CvxErrorSuccess;
}

std::shared_ptr<DiscoverySession> CameraSystem::session() const
{
    const std::lock_guard lock(m_mutex);
    return m_session;
}

template <typename Observer>
CvxError CameraSystem::registerObserver(const std::shared_ptr<Observer> &observer)
{
    if (!observer)
        return CvxErrorInvalidParameter;
    const auto running = session();
    if (!running)
        return CvxErrorNotStarted;
    return guarded([&] {
        running->notifier().addObserver(observer);
        return CvxErrorSuccess;
    });
}

CvxError CameraSystem::RegisterCameraListObserver(const std::shared_ptr<ICameraListObserver> &observer)
{
    return registerObserver(observer);
}

CvxError CameraSystem::RegisterInterfaceListObserver(const std::shared_ptr<IInterfaceListObserver> &observer)
{
    return registerObserver(observer);
}

CvxError CameraSystem::GetCameras(std::shared_ptr<Camera> *cameras, unsigned &count)
{
    return guarded([&] {
        std::shared_ptr<const DiscoverySession::Cameras> found;
        if (cameras) {
            const std::lock_guard lock(m_mutex);
            found = m_found;
        }
        if (!found)
            found = searchCameras();
        if (!found)
            return CvxErrorNotStarted;
        const std::size_t maxCount = cameras ? count : std::numeric_limits<unsigned>::max();
        const std::size_t number = std::min(found->size(), maxCount);
        if (cameras)
            std::copy_n(found->begin(), number, cameras);
        count = static_cast<unsigned>(number);
        return CvxErrorSuccess;
    });
}

/// Searches for cameras and keeps the result. Returns null if the system does not run or is shut down
/// during the search.
std::shared_ptr<const DiscoverySession::Cameras> CameraSystem::searchCameras()
{
    const auto running = session();
    auto cameras = running ? running->searchCameras() : nullptr;
    const std::lock_guard lock(m_mutex);
    if (cameras && running == m_session)
        m_found = cameras;
    return cameras;
}
