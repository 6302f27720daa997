#pragma once

#include "tools/kit/measure/thermal/BoundedHistory.h"
#include "tools/kit/measure/thermal/DarkLevel.h"

#include <cstddef>
#include <optional>
#include <vector>

/// How the dark signal grows with the temperature.
struct DarkDoubling
{
    double kelvin = 0; ///< The dark signal doubles every so many kelvin.
    double error = 0; ///< Standard uncertainty, in kelvin.
    double offset = 0; ///< Pixel value without dark current.
    double signal = 0; ///< Dark signal above the offset at the highest temperature, in pixel values.
    double lowest = 0; ///< Lowest and highest temperature of the measurement.
    double highest = 0;
};

/// The dark level of a camera over time, together with a temperature. Needs no clock, and bounded memory.
class DarkSeries
{
public:
    /// @param seconds Later than at all calls before.
    void add(double seconds, double celsius, const DarkLevel &level);

    void clear() { *this = {}; }

    const BoundedHistory &levels() const { return m_levels; }

    /// Returns the standard deviation of single levels, from the second differences of the first ones; no
    /// value while there are fewer than ten.
    std::optional<double> noise() const { return m_noise; }

    /// Returns the time from which the dark level has followed the temperature: the first of three successive
    /// levels that differ from the mean of the first ten, all in one direction, by more than three times the
    /// noise of that difference, while the temperature differs from that of the first ten by at least 0.5 K
    /// in the same direction. No value if that has not happened: a level that drifts alone follows nothing.
    std::optional<double> followedAt() const { return m_followedAt; }

    /// Fits mu.d(T) = offset + signal · 2^((T - Tmax) / Td), the dark current that doubles every Td (EMVA
    /// 1288 4.0, Linear, section 3 on the temperature dependence of the dark current and section 7 on its
    /// measurement at several temperatures; all pictures have the same exposure time). See fitExponential()
    /// for the method. No value unless the data determine Td: the temperature has changed by at least 3 K,
    /// the signal grows with it, and Td lies between 2 and 30 K and is uncertain by less than 25 %.
    std::optional<DarkDoubling> doubling() const;

private:
    void learn(double celsius, const DarkLevel &level);
    void checkFollowing(double seconds, double celsius, double level);

    BoundedHistory m_levels;
    BoundedHistory m_temperatures; // At the same times, so its points are merged in the same way.
    std::vector<double> m_firstLevels;
    double m_firstMean = 0;
    double m_firstCelsius = 0; // Mean of the temperatures of the first levels.
    std::optional<double> m_noise;
    int m_deviating = 0; // Number of successive deviating levels; negative for those that are lower.
    double m_deviatingSince = 0;
    std::optional<double> m_followedAt;
};
