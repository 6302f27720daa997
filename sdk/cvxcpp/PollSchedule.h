#pragma once

#include "sdk/cvxcpp/Timing.h"

/// Decides when all producers are polled for cameras.
class PollSchedule
{
public:
    /// The first poll is due one interval after `now`, because every host is asked for its cameras as it
    /// starts.
    PollSchedule(Milliseconds interval, TimePoint now) : m_interval(interval), m_nextPoll(now + interval) { }

    TimePoint nextPoll() const { return m_nextPoll; }

    /// Returns true if a poll is due and schedules the next one. Polls missed while the process stood still
    /// are replaced by a single one.
    bool takeDuePoll(TimePoint now);

private:
    Milliseconds m_interval;
    TimePoint m_nextPoll;
};
