#pragma once

#include "tools/kit/measure/thermal/DarkSeries.h"
#include "tools/kit/measure/thermal/PlaceMonitor.h"
#include "tools/kit/measure/thermal/TemperatureLog.h"

#include <optional>
#include <string>
#include <vector>

/// Follows all temperatures of one camera and its dark level, and writes them to a log if one is open. Needs
/// no clock: times are handed in.
class ThermalMonitor
{
public:
    /// @param places See TemperatureSource.
    /// @param start UTC time of second 0.
    ThermalMonitor(const std::vector<std::string> &places, std::string start);

    /// A place has reached or left a threshold.
    struct AlertChange
    {
        std::string place;
        AlertLevel level = AlertLevel::Normal;
        double celsius = 0;
    };

    /// Adds a reading, analyses it and appends it to the log, with what has happened: a changed threshold
    /// level, or that the dark level follows the temperature from now on. A reading without any value is
    /// logged once, so the log has a gap while the camera is lost.
    /// @param seconds Since the start; later than at all calls before.
    /// @param time The same moment in UTC.
    std::vector<AlertChange> add(
        double seconds, const std::string &time, const std::vector<std::optional<double>> &celsius);

    /// Sets the level of a dark picture, which belongs to the next reading; it is dropped if that has no
    /// temperature of the sensor.
    void setDark(const DarkLevel &level) { m_nextDark = level; }
    void clearDark();

    void setThresholds(const Thresholds &thresholds);

    const std::string &start() const { return m_start; }
    const std::vector<PlaceMonitor> &places() const { return m_places; }
    const DarkSeries &dark() const { return m_dark; }
    TemperatureLog &log() { return m_log; }

    /// Returns the names of the places for the columns of a log.
    std::vector<std::string> placeNames() const;

    /// Returns the index of the place that is the sensor; the first place if no name says so.
    std::size_t sensorPlace() const;

    bool isLost() const { return m_isLost; } ///< The last reading has no value.

    /// Returns true if the temperatures of all places that have readings are steady, and there is such a
    /// place.
    bool isSteady() const;

    /// Returns the highest level of all places.
    AlertLevel alert() const;

private:
    bool addDark(double seconds, double celsius, const DarkLevel &level);

    std::string m_start;
    std::vector<PlaceMonitor> m_places;
    DarkSeries m_dark;
    std::optional<DarkLevel> m_nextDark;
    TemperatureLog m_log;
    bool m_isLost = false;
};
