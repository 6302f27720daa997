#include "sdk/cvxcpp/StandstillRule.h"

#include <utility>

Milliseconds StandstillRule::wokeUp(TimePoint now)
{
    const TimePoint wakeUp = std::exchange(m_wakeUp, TimePoint::max());
    if (wakeUp > now || now - wakeUp < tolerance)
        return Milliseconds(0);
    return std::chrono::duration_cast<Milliseconds>(now - wakeUp);
}
