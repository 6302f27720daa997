#pragma once

#include "sdk/cvxcpp/Timing.h"

#include <optional>

/// Decides which camera lists of one host also update the list of interfaces. Not all of them do, since that
/// update gets slower from call to call in some producers.
class InterfaceUpdateSchedule
{
public:
    InterfaceUpdateSchedule(Milliseconds updateInterval, Milliseconds pollInterval);

    /// The first list of a host always updates the interfaces.
    void hostStarted() { m_updatedAt.reset(); }

    /// Returns true if the list that is requested now has to update the interfaces.
    bool takeDueUpdate(TimePoint now);

private:
    Milliseconds m_minDistance;
    std::optional<TimePoint> m_updatedAt;
};
