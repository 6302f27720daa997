#pragma once

#include <chrono>

/// Decides when the camera has to be checked and when it counts as lost. A camera that sends images needs no
/// check. Every function gets the current time, so that the rule does not depend on a clock.
class LossDetector
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// Starts to watch a camera that answers.
    void start(TimePoint now) { noteSuccess(now); }

    /// Notes a sign of life: images have arrived, or the check has succeeded.
    void noteSuccess(TimePoint now);

    /// Notes that something may be wrong, so that a check is due at once.
    void noteSuspicion(TimePoint now);

    /// Notes that the check has failed.
    void noteFailure(TimePoint now);

    bool isCheckDue(TimePoint now) const { return now >= m_nextCheck; }
    bool isLost() const;

private:
    TimePoint m_nextCheck;
    int m_failures = 0; // Number of failed checks in a row.
};
