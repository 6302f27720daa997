#pragma once

#include <optional>

enum class AlertLevel
{
    Normal,
    Warning,
    Alarm
};

/// Temperatures at which a person wants to be told.
struct Thresholds
{
    std::optional<double> warning;
    std::optional<double> alarm;
    double hysteresis
        = 1; ///< A level ends this many kelvin below its threshold, so noise does not repeat it.
};

/// Compares the readings of one place with thresholds.
class ThresholdWatch
{
public:
    /// The next reading decides anew.
    void setThresholds(const Thresholds &thresholds);

    AlertLevel level() const { return m_level; }

    /// Returns the new level if the reading has changed it.
    std::optional<AlertLevel> update(double celsius);

private:
    bool isReached(const std::optional<double> &threshold, AlertLevel level, double celsius) const;

    Thresholds m_thresholds;
    AlertLevel m_level = AlertLevel::Normal;
};
