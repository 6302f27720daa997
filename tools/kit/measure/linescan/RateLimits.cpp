#include "tools/kit/measure/linescan/RateLimits.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double microsecondsPerSecond = 1e6;
constexpr double roundingShare = 1e-6; // A rate may exceed its limit by this because numbers are rounded.
constexpr double protocolShare = 0.1; // Share of the bandwidth of a link that headers need, at most.

} // namespace

bool RateLimits::isExposureLimiting() const
{
    return m_facts.maxRate && m_facts.exposure * 2 >= microsecondsPerSecond / *m_facts.maxRate;
}

/// A camera that knows its link reports a highest rate that the link carries.
bool RateLimits::isLinkInMaxRate() const
{
    const std::optional<double> link = linkRate();
    return link && m_facts.maxRate && *m_facts.maxRate <= *link * (1 + roundingShare)
        && *m_facts.maxRate >= *link * (1 - protocolShare);
}

std::optional<double> RateLimits::deadTime() const
{
    if (!isExposureLimiting())
        return std::nullopt;
    return std::max(0.0, microsecondsPerSecond / *m_facts.maxRate - m_facts.exposure);
}

double RateLimits::longestExposure(double rate) const
{
    return std::max(0.0, microsecondsPerSecond / rate - deadTime().value_or(0));
}

std::optional<double> RateLimits::linkRate() const
{
    if (m_facts.linkSpeed.value_or(0) <= 0 || m_facts.bytesPerLine.value_or(0) <= 0)
        return std::nullopt;
    return *m_facts.linkSpeed / *m_facts.bytesPerLine;
}

RateLimit RateLimits::lowest(double exposure) const
{
    RateLimit lowest;
    const auto offer = [&lowest](RateReason reason, double rate) {
        if (lowest.reason == RateReason::None || rate < lowest.rate)
            lowest = {reason, rate};
    };
    if (const std::optional<double> link = linkRate())
        offer(RateReason::Link, *link);
    const bool isShortest
        = m_facts.shortestExposure && exposure <= *m_facts.shortestExposure * (1 + roundingShare);
    if (exposure > 0)
        offer(isShortest ? RateReason::Camera : RateReason::Exposure,
            microsecondsPerSecond / (exposure + deadTime().value_or(0)));
    if (m_facts.maxRate && !isExposureLimiting())
        offer(isLinkInMaxRate() ? RateReason::Link : RateReason::Camera, *m_facts.maxRate);
    return lowest;
}

RateLimit RateLimits::check(double rate, double exposure) const
{
    const RateLimit limit = lowest(exposure);
    return limit.reason != RateReason::None && rate > limit.rate * (1 + roundingShare) ? limit : RateLimit();
}
