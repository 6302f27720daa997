#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceCore.h"

/// The requests for the temporary changes of a device; see CvxCPP::Device. Every function throws only
/// std::exception.
class TemporaryRequests
{
public:
    explicit TemporaryRequests(DeviceCore &core) : m_core(core) { }

    CvxCPP::CvxResult begin();
    CvxCPP::CvxResult end(CvxCPP::TemporaryChanges how);

    /// Ends the changes in the way that the program has requested while the camera was lost, if it has.
    CvxCPP::CvxResult endAsRequested();

private:
    TimePoint deadline() const { return SteadyClock::now() + m_core.options.requestTimeout; }

    DeviceCore &m_core;
};
