#pragma once

#include "sdk/process/Timing.h"

/// Decides when all producers are polled for cameras.
class PollSchedule
{
public:
    /// The first poll is due one interval after `now`, because every host is asked for its cameras when it
    /// starts.
    PollSchedule(Milliseconds interval, TimePoint now) : m_interval(interval), m_nextPoll(now + interval) { }

    TimePoint nextPoll() const { return m_nextPoll; }

    /// Returns true if a poll is due, and schedules the next poll. Polls that were missed while the process
    /// was stopped are replaced by a single poll.
    bool takeDuePoll(TimePoint now);

private:
    Milliseconds m_interval;
    TimePoint m_nextPoll;
};
