#include "sdk/cvxcpp/InterfaceUpdateSchedule.h"

// Lists are requested at multiples of the poll interval, a little earlier or later. Half an interval of
// tolerance keeps an update that is a little early from being put off by a whole poll.
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
