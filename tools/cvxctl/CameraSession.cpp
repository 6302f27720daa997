#include "tools/cvxctl/CameraSession.h"

#include "sdk/names/CameraMatch.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

#include <chrono>
#include <thread>

using namespace CvxCPP;

namespace {

/// Prints the error of a failed Camera::Open().
ExitStatus reportOpening(const CvxResult &result)
{
    if (result)
        return exitSuccess;
    printError(result.text);
    if (result.code == CvxErrorNotFound)
        return exitNoCamera;
    return result.code == CvxErrorInUse || result.code == CvxErrorTimeout ? exitStatus(result.code)
                                                                          : exitFailure;
}

} // namespace

CameraSession::~CameraSession()
{
    m_device.reset();
    m_camera.camera.reset();
    if (m_isStarted)
        CvxSystem::GetInstance().Shutdown();
}

ExitStatus CameraSession::start()
{
    if (m_isStarted)
        return exitSuccess;
    const CvxError error = CvxSystem::GetInstance().Startup();
    m_isStarted = error == CvxErrorSuccess;
    if (m_isStarted)
        return exitSuccess;
    printError(error == CvxErrorHostMissing
            ? "the SDK is not installed completely: the program CvxProducerHost is missing or not executable"
            : "the camera system cannot be started: error " + std::to_string(error));
    return exitFailure;
}

ExitStatus CameraSession::list(std::vector<ListedCamera> &cameras)
{
    if (const ExitStatus status = start())
        return status;
    CvxSystem &system = CvxSystem::GetInstance();
    unsigned count = 0;
    CvxError error = system.GetCameras(nullptr, count);
    std::vector<std::shared_ptr<Camera>> found(count);
    if (error == CvxErrorSuccess && count > 0)
        error = system.GetCameras(found.data(), count);
    if (error != CvxErrorSuccess) {
        printError("the cameras cannot be listed: error " + std::to_string(error));
        return exitFailure;
    }
    found.resize(count);
    cameras.clear();
    for (const auto &camera : found)
        cameras.push_back({readCameraNames(*camera), technologyName(*camera), camera});
    return exitSuccess;
}

ExitStatus CameraSession::listLate(std::vector<ListedCamera> &cameras)
{
    if (const ExitStatus status = start())
        return status;
    using namespace std::chrono_literals;
    for (const auto end = std::chrono::steady_clock::now() + 1200ms;
         std::chrono::steady_clock::now() < end && !isInterrupted();)
        std::this_thread::sleep_for(50ms);
    return list(cameras);
}

ExitStatus CameraSession::find(const std::string &text, ListedCamera &camera)
{
    std::vector<ListedCamera> cameras;
    std::vector<std::size_t> matches;
    const auto match = [&](ExitStatus status) {
        std::vector<CameraNames> names;
        for (const ListedCamera &listed : cameras)
            names.push_back(listed.names);
        matches = matchCameras(names, text);
        return status;
    };
    if (const ExitStatus status = match(list(cameras)))
        return status;
    if (matches.empty()) {
        if (const ExitStatus status = match(listLate(cameras)))
            return status;
    }
    if (matches.size() == 1) {
        camera = cameras[matches.front()];
        return exitSuccess;
    }
    if (matches.empty()) {
        printError("no camera matches \"" + text + "\"; \"cvxctl list\" shows the cameras");
        return exitNoCamera;
    }
    printError("several cameras match \"" + text + "\"; use the ID of one of them:");
    for (const std::size_t index : matches) {
        const CameraNames &names = cameras[index].names;
        std::fprintf(
            stderr, "  %s  (%s)\n", printable(names.extendedId).c_str(), printable(names.name).c_str());
    }
    return exitAmbiguous;
}

ExitStatus CameraSession::open(const std::string &text, CvxAccess access)
{
    if (const ExitStatus status = find(text, m_camera))
        return status;
    return reportOpening(m_camera.camera->Open(access, m_device));
}

ExitStatus CameraSession::openToRead(const std::string &text)
{
    if (const ExitStatus status = find(text, m_camera))
        return status;
    const CvxResult result = m_camera.camera->Open(CvxAccessControl, m_device);
    if (result.code != CvxErrorInUse)
        return reportOpening(result);
    printError(result.text + " Settings are read only for the present values of the selectors.");
    return reportOpening(m_camera.camera->Open(CvxAccessWatch, m_device));
}

ExitStatus reportFailure(const CvxResult &result)
{
    printError(result.text);
    return exitStatus(result.code);
}
