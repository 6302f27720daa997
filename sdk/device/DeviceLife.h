#pragma once

#include "CvxCPP/Device.h"
#include "sdk/process/Timing.h"

#include <cstdint>

/// The state of a device and the rule when a lost camera is opened again. A device is created while its
/// camera is being opened for the first time; until then, its state is Reopening. Every function that changes
/// the state returns false, without any effect, if the state does not allow the change.
///
///     Reopening -> Open -> Lost -> Reopening -> Open or Lost ...     every state -> Closed
class DeviceLife
{
public:
    DeviceLife(Milliseconds reopenInterval, TimePoint now);

    CvxCPP::DeviceState state() const { return m_state; }
    std::uint32_t reopenCount() const { return m_openCount > 0 ? m_openCount - 1 : 0; }

    /// The camera was opened.
    bool opened();
    /// The camera or its host failed, or could not be opened.
    bool lost();
    /// Returns the time at which a lost camera is opened again, or TimePoint::max() if it is not lost.
    TimePoint nextReopening() const;
    /// Begins an attempt if its time has come.
    bool beginReopening(TimePoint now);
    bool closed();

private:
    const Milliseconds m_reopenInterval;
    CvxCPP::DeviceState m_state = CvxCPP::DeviceState::Reopening;
    TimePoint m_lastAttempt; // Start of the last attempt to open the camera.
    std::uint32_t m_openCount = 0;
};
