#include "sdk/cvxcpp/NotificationHold.h"

#include <algorithm>

void NotificationHold::holdUntil(TimePoint time)
{
    m_holdUntil = std::max(m_holdUntil, time);
}

void NotificationHold::changed(TimePoint now)
{
    if (!m_changedAt)
        m_changedAt = now;
}

std::optional<TimePoint> NotificationHold::dueTime() const
{
    if (!m_changedAt)
        return std::nullopt;
    return std::min(m_holdUntil, *m_changedAt + maxHold);
}
