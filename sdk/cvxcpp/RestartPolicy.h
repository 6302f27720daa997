#pragma once

#include "sdk/cvxcpp/Timing.h"

/// Decides when a failed producer host is started again. The delay doubles with every failure up to a
/// maximum; after a host has run for as long as that maximum, it begins with the first delay again.
class RestartPolicy
{
public:
    RestartPolicy(Milliseconds firstDelay, Milliseconds maxDelay);

    void started(TimePoint now) { m_startedAt = now; }
    void failed(TimePoint now);

    /// Returns the earliest time of the next start. The first start precedes every restart of another host.
    TimePoint nextStart() const { return m_nextStart; }

private:
    Milliseconds m_firstDelay;
    Milliseconds m_maxDelay;
    Milliseconds m_delay; // The next failure is followed by this delay.
    TimePoint m_startedAt{};
    TimePoint m_nextStart{};
};
