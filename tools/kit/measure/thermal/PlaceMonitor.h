#pragma once

#include "tools/kit/measure/thermal/BoundedHistory.h"
#include "tools/kit/measure/thermal/Forecast.h"
#include "tools/kit/measure/thermal/SlopeEstimate.h"
#include "tools/kit/measure/thermal/ThresholdWatch.h"

#include <optional>
#include <string>

enum class ThermalState
{
    Unknown, ///< There are too few readings.
    WarmingUp,
    Steady,
    Cooling
};

/// What is known about the temperature of one place now.
struct PlaceReport
{
    std::optional<double> celsius; ///< No value while the place cannot be read.
    std::optional<SlopeEstimate> slope;
    std::optional<Forecast> forecast; ///< Only if it is determined.
    ThermalState state = ThermalState::Unknown;
    std::optional<double> secondsToSteady; ///< 0 if the temperature is steady.
    double secondsToState = 0; ///< While the state is unknown: how long it takes at least to know it.
    AlertLevel alert = AlertLevel::Normal;
};

/// Follows the temperature of one place of a camera. Needs no clock: times are handed in.
class PlaceMonitor
{
public:
    /// @param place Entry of the selector, for example "Sensor"; empty if the camera has one temperature.
    explicit PlaceMonitor(std::string place) : m_place(std::move(place)) { }

    const std::string &place() const { return m_place; }
    const BoundedHistory &history() const { return m_history; }
    ThresholdWatch &thresholds() { return m_thresholds; }

    /// Adds a reading; without value, the history gets a gap. Returns the new level of the thresholds if the
    /// reading has changed it.
    /// @param seconds Since the start; later than at all calls before.
    std::optional<AlertLevel> add(double seconds, const std::optional<double> &celsius);

    /// Analyses the readings up to now.
    const PlaceReport &analyse();

    /// Returns what analyse() found last.
    const PlaceReport &report() const { return m_report; }

private:
    ThermalState state() const;

    std::string m_place;
    BoundedHistory m_history;
    ThresholdWatch m_thresholds;
    PlaceReport m_report;
};
