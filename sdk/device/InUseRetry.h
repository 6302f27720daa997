#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/process/Timing.h"

#include <optional>

/// Decides whether an attempt to open a camera is repeated. A camera whose last user has crashed stays in use
/// for some seconds.
class InUseRetry
{
public:
    InUseRetry(Milliseconds timeout, Milliseconds interval, TimePoint now);

    /// Returns when to try again after an attempt that began at `begin` has failed with this error, or
    /// nothing if the error is final.
    std::optional<TimePoint> nextAttempt(CvxCPP::CvxError error, TimePoint begin, TimePoint now) const;

private:
    Milliseconds m_interval;
    TimePoint m_end;
};
