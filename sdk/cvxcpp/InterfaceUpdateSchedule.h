#pragma once

#include "sdk/process/Timing.h"

#include <optional>

/// Decides which camera list requests to one host also update the list of interfaces. Not every request
/// does so, because some producers become slower with every update of the interfaces.
class InterfaceUpdateSchedule
{
public:
    InterfaceUpdateSchedule(Milliseconds updateInterval, Milliseconds pollInterval);

    /// Makes the next request update the interfaces too, because it is the first request to a new host.
    void hostStarted() { m_updatedAt.reset(); }

    /// Returns true if the request that is sent now has to update the interfaces.
    bool takeDueUpdate(TimePoint now);

private:
    Milliseconds m_minDistance;
    std::optional<TimePoint> m_updatedAt;
};
