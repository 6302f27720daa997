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

    /// Adds a reading, analyses it and appends it to the log. A reading without any value is logged once, so
    /// the log has a gap while the camera is lost.
    /// @param seconds Since the start; later than at all calls before.
    /// @param time The same moment in UTC.
    std::vector<AlertChange> add(
        double seconds, const std::string &time, const std::vector<std::optional<double>> &celsius);

    /// Adds the level of a dark picture, with the present temperature of the sensor; has no effect while that
    /// is unknown. The next line of the log contains the level.
    void addDark(double seconds, const DarkLevel &level);
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

    /// Returns true if the temperatures of all places are steady.
    bool isSteady() const;

    /// Returns the highest level of all places.
    AlertLevel alert() const;

private:
    std::string m_start;
    std::vector<PlaceMonitor> m_places;
    DarkSeries m_dark;
    std::optional<double> m_unloggedDark;
    TemperatureLog m_log;
    bool m_isLost = false;
};
