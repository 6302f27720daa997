#pragma once

#include "sdk/process/Timing.h"

#include <optional>

/// Decides when observers are notified of a change. Notifications are delayed after the program has
/// received a camera list. Otherwise the program would react to a notification by requesting a list again,
/// although it is still processing the list that it has just received.
class NotificationHold
{
public:
    /// The maximum delay of a notification, no matter how often the program requests camera lists.
    static constexpr Milliseconds maxHold{500};

    void holdUntil(TimePoint time);

    void changed(TimePoint now);
    void notified() { m_changedAt.reset(); }

    /// Returns the time at which observers have to be notified, or nothing if no change is pending.
    std::optional<TimePoint> dueTime() const;

private:
    TimePoint m_holdUntil{};
    // Time of the oldest change that observers have not been notified of.
    std::optional<TimePoint> m_changedAt;
};
