#pragma once

#include "sdk/cvxcpp/Timing.h"

#include <optional>

/// Decides when observers are notified of a change. Notifications are held back right after a program
/// received a camera list: it would answer one by requesting the list that it is about to process anyway.
class NotificationHold
{
public:
    static constexpr Milliseconds maxHold{
        500}; ///< Longest delay of a change, however often the program lists.

    void holdUntil(TimePoint time);

    void changed(TimePoint now);
    void notified() { m_changedAt.reset(); }

    /// Returns the time at which observers are to be notified; nothing if no change is pending.
    std::optional<TimePoint> dueTime() const;

private:
    TimePoint m_holdUntil{};
    std::optional<TimePoint> m_changedAt; // The oldest change that observers do not know of.
};
