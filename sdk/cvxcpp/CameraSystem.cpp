#include "sdk/cvxcpp/CameraSystem.h"

#include "sdk/cvxcpp/CtiSearchPath.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace CvxCPP;

namespace {

bool isExecutableFile(const std::string &path)
{
    struct stat file
    { };
    return stat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode) && access(path.c_str(), X_OK) == 0;
}

std::vector<std::string> ctiDirectories(const SystemOptions &options)
{
    auto directories = configuredCtiDirectories(options.installRoot, options.configurationFile);
    for (std::string &directory : searchPathDirectories(std::getenv("GENICAM_GENTL64_PATH")))
        directories.push_back(std::move(directory));
    return directories;
}

} // namespace

CameraSystem::CameraSystem(SystemOptions options) : m_options(std::move(options)) { }

CameraSystem::~CameraSystem()
{
    CameraSystem::Shutdown();
}

CvxError CameraSystem::Startup()
{
    if (Announcer::isCallingObservers())
        return CvxErrorAlreadyStarted; // Or just ending, which waits for this callback.
    const std::lock_guard lifeLock(m_lifeMutex);
    if (session())
        return CvxErrorAlreadyStarted;
    if (!isExecutableFile(m_options.hostProgram))
        return CvxErrorHostMissing;
    try {
        return startSession();
    } catch (const std::exception &) { // No memory, no thread or no descriptor left.
        return CvxErrorFailed;
    }
}

CvxError CameraSystem::startSession()
{
    auto session = std::make_shared<DiscoverySession>(m_options, ctiDirectories(m_options));
    session->start();
    const std::lock_guard lock(m_mutex);
    m_session = std::move(session);
    m_found = nullptr;
    return CvxErrorSuccess;
}

CvxError CameraSystem::Shutdown()
{
    if (Announcer::isCallingObservers())
        return CvxErrorFailed; // It would wait for itself.
    const std::lock_guard lifeLock(m_lifeMutex);
    std::shared_ptr<DiscoverySession> ending;
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
    try {
        running->announcer().addObserver(observer);
    } catch (const std::exception &) { // Out of memory.
        return CvxErrorFailed;
    }
    return CvxErrorSuccess;
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
    try {
        std::shared_ptr<const DiscoverySession::Cameras> found;
        if (cameras) {
            const std::lock_guard lock(m_mutex);
            found = m_found;
        }
        if (!found) {
            const CvxError error = searchCameras(found);
            if (error != CvxErrorSuccess)
                return error;
        }
        const std::size_t most = cameras ? count : std::numeric_limits<unsigned>::max();
        const std::size_t number = std::min(found->size(), most);
        if (cameras)
            std::copy_n(found->begin(), number, cameras);
        count = static_cast<unsigned>(number);
        return CvxErrorSuccess;
    } catch (const std::exception &) { // Out of memory.
        return CvxErrorFailed;
    }
}

CvxError CameraSystem::searchCameras(std::shared_ptr<const DiscoverySession::Cameras> &cameras)
{
    const auto running = session();
    if (!running || !running->searchCameras(cameras))
        return CvxErrorNotStarted;
    const std::lock_guard lock(m_mutex);
    if (running == m_session)
        m_found = cameras;
    return CvxErrorSuccess;
}
