#include "tools/kit/measure/thermal/PlaceMonitor.h"

#include <algorithm>
#include <cmath>

std::optional<AlertLevel> PlaceMonitor::add(double seconds, const std::optional<double> &celsius)
{
    m_report.celsius = celsius;
    if (!celsius) {
        m_history.addGap();
        return std::nullopt;
    }
    m_history.add(seconds, *celsius);
    const std::optional<AlertLevel> change = m_thresholds.update(*celsius);
    m_report.alert = m_thresholds.level();
    return change;
}

const PlaceReport &PlaceMonitor::analyse()
{
    m_report.slope = estimateSlope(m_history);
    m_report.forecast = forecast(m_history);
    m_report.state = state();
    m_report.secondsToSteady.reset();
    m_report.secondsToState = 0;
    if (m_history.isEmpty())
        return m_report;
    const double now = m_history.newest().last;
    if (m_report.state == ThermalState::Steady)
        m_report.secondsToSteady = 0;
    else if (m_report.forecast)
        m_report.secondsToSteady = m_report.forecast->secondsToSteady(now);
    if (m_report.state == ThermalState::Unknown) {
        const double window = slopeWindow(m_history);
        const double first = sinceLastGap(m_history.since(now - window)).front().first;
        m_report.secondsToState = std::max(1.0, window / 2 - (now - first));
    }
    return m_report;
}

ThermalState PlaceMonitor::state() const
{
    constexpr double leaving = 2; // A steady temperature has to leave twice the limit, so noise does not.
    const bool wasSteady = m_report.state == ThermalState::Steady;
    const double factor = wasSteady ? leaving : 1;
    if (!m_report.slope)
        return ThermalState::Unknown;
    const double perMinute = m_report.slope->perMinute;
    const double now = m_history.newest().last;
    const auto &forecast = m_report.forecast;
    const bool isNearEnd = forecast
        && (forecast->secondsToSteady(now) <= 0
            || std::abs(forecast->at(now) - forecast->end) < steadyDistance * factor);
    if (isNearEnd || std::abs(perMinute) < steadyPerMinute * factor)
        return ThermalState::Steady;
    return perMinute > 0 ? ThermalState::WarmingUp : ThermalState::Cooling;
}
