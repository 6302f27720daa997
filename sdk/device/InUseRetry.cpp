#include "sdk/device/InUseRetry.h"

#include <algorithm>

InUseRetry::InUseRetry(Milliseconds timeout, Milliseconds interval, TimePoint now)
    : m_interval(interval), m_end(now + timeout)
{ }

std::optional<TimePoint> InUseRetry::nextAttempt(CvxCPP::CvxError error, TimePoint begin, TimePoint now) const
{
    const TimePoint next = std::max(begin + m_interval, now);
    if (error != CvxCPP::CvxErrorInUse || next > m_end)
        return std::nullopt;
    return next;
}
