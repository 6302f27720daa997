#pragma once

#include "CvxCPP/CvxCPP.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// Writes down every call, as "+ID" or "-ID" with the camera's extended ID.
class CameraRecorder : public CvxCPP::ICameraListObserver
{
public:
    void CameraListChanged(std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason) override;
    std::vector<std::string> calls() const;

    std::function<void()> onCall; ///< Set it before the observer is registered.

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_calls;
};

/// Counts the interfaces that came and went: "+" or "-" each.
class InterfaceRecorder : public CvxCPP::IInterfaceListObserver
{
public:
    void InterfaceListChanged(
        std::shared_ptr<CvxCPP::Interface> iface, CvxCPP::UpdateTriggerType reason) override;
    std::string calls() const;

private:
    mutable std::mutex m_mutex;
    std::string m_calls;
};
