#pragma once

#include "sdk/process/Timing.h"

/// Detects that the session's thread could not run although it had to: the process was stopped, or the
/// machine was overloaded. The hosts were probably stopped as well, so they are given the lost
/// time before a missing reply counts as a failure.
class StandstillRule
{
public:
    /// A wake-up that is late by less than this time is not a standstill.
    static constexpr Milliseconds tolerance{500};

    void waitsUntil(TimePoint wakeUp) { m_wakeUp = wakeUp; }

    /// Returns the time that was lost since the time passed to waitsUntil(), or 0 if the wake-up was not
    /// late.
    Milliseconds wokeUp(TimePoint now);

private:
    TimePoint m_wakeUp = TimePoint::max();
};
