#include "sdk/device/DeviceLife.h"

using CvxCPP::DeviceState;

DeviceLife::DeviceLife(Milliseconds reopenInterval, TimePoint now)
    : m_reopenInterval(reopenInterval), m_lastAttempt(now)
{ }

bool DeviceLife::opened()
{
    if (m_state != DeviceState::Reopening)
        return false;
    m_state = DeviceState::Open;
    ++m_openCount;
    return true;
}

bool DeviceLife::lost()
{
    if (m_state != DeviceState::Open && m_state != DeviceState::Reopening)
        return false;
    m_state = DeviceState::Lost;
    return true;
}

TimePoint DeviceLife::nextReopening() const
{
    return m_state == DeviceState::Lost ? m_lastAttempt + m_reopenInterval : TimePoint::max();
}

bool DeviceLife::beginReopening(TimePoint now)
{
    if (now < nextReopening())
        return false;
    m_state = DeviceState::Reopening;
    m_lastAttempt = now;
    return true;
}

bool DeviceLife::closed()
{
    if (m_state == DeviceState::Closed)
        return false;
    m_state = DeviceState::Closed;
    return true;
}
