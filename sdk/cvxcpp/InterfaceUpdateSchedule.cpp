#include "sdk/cvxcpp/InterfaceUpdateSchedule.h"

// Camera lists are requested once per poll interval, sometimes a little earlier or later. Without the
// tolerance of half a poll interval, an update that becomes due just after a request would have to wait for
// the next request.
InterfaceUpdateSchedule::InterfaceUpdateSchedule(Milliseconds updateInterval, Milliseconds pollInterval)
    : m_minDistance(updateInterval - pollInterval / 2)
{ }

bool InterfaceUpdateSchedule::takeDueUpdate(TimePoint now)
{
    if (m_updatedAt && now - *m_updatedAt < m_minDistance)
        return false;
    m_updatedAt = now;
    return true;
}
