#include "sdk/cvxcpp/PollSchedule.h"

#include <algorithm>

bool PollSchedule::takeDuePoll(TimePoint now)
{
    if (now < m_nextPoll)
        return false;
    m_nextPoll = std::max(m_nextPoll + m_interval, now);
    return true;
}
