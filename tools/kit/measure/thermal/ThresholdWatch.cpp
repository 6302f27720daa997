#include "tools/kit/measure/thermal/ThresholdWatch.h"

void ThresholdWatch::setThresholds(const Thresholds &thresholds)
{
    m_thresholds = thresholds;
    m_level = AlertLevel::Normal;
}

std::optional<AlertLevel> ThresholdWatch::update(double celsius)
{
    const AlertLevel before = m_level;
    if (isReached(m_thresholds.alarm, AlertLevel::Alarm, celsius))
        m_level = AlertLevel::Alarm;
    else if (isReached(m_thresholds.warning, AlertLevel::Warning, celsius))
        m_level = AlertLevel::Warning;
    else
        m_level = AlertLevel::Normal;
    return m_level == before ? std::nullopt : std::optional(m_level);
}

bool ThresholdWatch::isReached(const std::optional<double> &threshold, AlertLevel level, double celsius) const
{
    if (!threshold)
        return false;
    const bool wasReached = m_level >= level;
    return celsius >= (wasReached ? *threshold - m_thresholds.hysteresis : *threshold);
}
