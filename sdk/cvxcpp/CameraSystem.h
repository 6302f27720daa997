#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/DiscoverySession.h"
#include "sdk/cvxcpp/SystemOptions.h"

#include <memory>
#include <mutex>

/// The camera system of the process: starts and ends sessions, and passes requests on to the running
/// session.
class CameraSystem final : public CvxCPP::CvxSystem
{
public:
    explicit CameraSystem(SystemOptions options);
    ~CameraSystem() override;

    CvxCPP::CvxError Startup() override;
    CvxCPP::CvxError Shutdown() override;
    CvxCPP::CvxError RegisterCameraListObserver(
        const std::shared_ptr<CvxCPP::ICameraListObserver> &observer) override;
    CvxCPP::CvxError RegisterInterfaceListObserver(
        const std::shared_ptr<CvxCPP::IInterfaceListObserver> &observer) override;
    CvxCPP::CvxError GetCameras(std::shared_ptr<CvxCPP::Camera> *cameras, unsigned &count) override;

private:
    template <typename Observer>
    CvxCPP::CvxError registerObserver(const std::shared_ptr<Observer> &observer);
    void startSession();
    std::shared_ptr<const DiscoverySession::Cameras> searchCameras();
    std::shared_ptr<DiscoverySession> session() const;

    const SystemOptions m_options;
    std::mutex m_lifeMutex; // Startup() and Shutdown() hold this mutex while they run.

    mutable std::mutex m_mutex; // Guards the members below.
    std::shared_ptr<DiscoverySession> m_session; // Null while the system does not run.
    std::shared_ptr<const DiscoverySession::Cameras> m_found; // Result of the last search; null before it.
};
