#pragma once

#include "CvxCPP/CvxCPP.h"
#include "tests/sdk/support/CameraText.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// Records every call as "+ID" or "-ID", with the camera's extended ID.
class CameraRecorder : public CvxCPP::ICameraListObserver
{
public:
    void CameraListChanged(std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason) override
    {
        {
            const std::lock_guard lock(m_mutex);
            m_calls.push_back((reason == CvxCPP::UpdateTriggerPluggedIn ? "+" : "-") + extendedId(*camera));
        }
        if (onCall)
            onCall();
    }

    std::vector<std::string> calls() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }

    std::function<void()> onCall; ///< Must be set before the observer is registered.

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_calls;
};

/// Records every call as "+" or "-".
class InterfaceRecorder : public CvxCPP::IInterfaceListObserver
{
public:
    void InterfaceListChanged(std::shared_ptr<CvxCPP::Interface>, CvxCPP::UpdateTriggerType reason) override
    {
        const std::lock_guard lock(m_mutex);
        m_calls += reason == CvxCPP::UpdateTriggerPluggedIn ? '+' : '-';
    }

    std::string calls() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }

private:
    mutable std::mutex m_mutex;
    std::string m_calls;
};
