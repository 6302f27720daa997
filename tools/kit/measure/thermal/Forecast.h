#pragma once

#include "tools/kit/measure/thermal/BoundedHistory.h"

#include <optional>

/// Where a temperature is going: T(t) = end + (T0 - end) · exp(-t / tau), the solution of Newton's law of
/// cooling for a constant power.
struct Forecast
{
    double end = 0; ///< Expected final value.
    double endError = 0; ///< Standard uncertainty of `end`.
    double timeConstant = 0; ///< tau, in seconds.
    double timeConstantError = 0; ///< Standard uncertainty of tau, in seconds.
    double amplitude = 0; ///< T0 - end at the time `from`.
    double from = 0; ///< Time of the first reading that was used.

    double at(double seconds) const;

    /// Returns the seconds from a time until the temperature is steady; 0 if it is.
    double secondsToSteady(double seconds) const;
};

/// A temperature is steady if it is this close to its final value, or if it changes less per minute.
constexpr double steadyDistance = 0.5;
constexpr double steadyPerMinute = 0.1;

/// Fits the curve to the readings; see fitExponential(). Uses the longest time up to now in which all
/// readings follow one curve, so a change of the camera's work starts a new forecast.
///
/// Returns no value unless the data determine the final value: the readings last for at least a tenth of the
/// time constant, which lies within the limits of the search, its uncertainty is below 40 %, and twice the
/// uncertainty of the final value is below 1 K.
std::optional<Forecast> forecast(const BoundedHistory &history);
