#include "tests/sdk/support/Observers.h"

#include "tests/sdk/support/CameraText.h"

void CameraRecorder::CameraListChanged(
    std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason)
{
    const std::string sign = reason == CvxCPP::UpdateTriggerPluggedIn ? "+" : "-";
    {
        const std::lock_guard lock(m_mutex);
        m_calls.push_back(sign + extendedId(*camera));
    }
    if (onCall)
        onCall();
}

std::vector<std::string> CameraRecorder::calls() const
{
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

void InterfaceRecorder::InterfaceListChanged(
    std::shared_ptr<CvxCPP::Interface> iface, CvxCPP::UpdateTriggerType reason)
{
    const std::lock_guard lock(m_mutex);
    if (iface)
        m_calls += reason == CvxCPP::UpdateTriggerPluggedIn ? '+' : '-';
}

std::string InterfaceRecorder::calls() const
{
    const std::lock_guard lock(m_mutex);
    return m_calls;
}
