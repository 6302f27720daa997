#pragma once

#include "sdk/process/Timing.h"

/// Decides when a failed producer host is started again. The delay doubles with every failure up to a
/// maximum. If a host ran for at least the maximum delay before it failed, the delay starts at its first
/// value again.
class RestartPolicy
{
public:
    RestartPolicy(Milliseconds firstDelay, Milliseconds maxDelay);

    void started(TimePoint now) { m_startedAt = now; }
    void failed(TimePoint now);

    /// Returns the earliest time of the next start. Before the first start, this time is earlier than every
    /// restart of another host.
    TimePoint nextStart() const { return m_nextStart; }

private:
    Milliseconds m_firstDelay;
    Milliseconds m_maxDelay;
    Milliseconds m_delay; // The delay after the next failure.
    TimePoint m_startedAt{};
    TimePoint m_nextStart{};
};
