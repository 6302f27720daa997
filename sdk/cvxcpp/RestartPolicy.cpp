#include "sdk/cvxcpp/RestartPolicy.h"

#include <algorithm>

RestartPolicy::RestartPolicy(Milliseconds firstDelay, Milliseconds maxDelay)
    : m_firstDelay(firstDelay), m_maxDelay(maxDelay), m_delay(firstDelay)
{ }

void RestartPolicy::failed(TimePoint now)
{
    if (now - m_startedAt >= m_maxDelay)
        m_delay = m_firstDelay;
    m_delay = std::min(m_delay, m_maxDelay);
    m_nextStart = now + m_delay;
    m_delay *= 2;
}
