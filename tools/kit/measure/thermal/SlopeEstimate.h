#pragma once

#include "tools/kit/measure/thermal/BoundedHistory.h"

#include <optional>
#include <vector>

/// How fast a temperature changes.
struct SlopeEstimate
{
    double perMinute = 0; ///< Kelvin per minute.
    double error = 0; ///< Standard uncertainty, including the rounding of the readings.
    double window = 0; ///< Seconds over which the slope was found.
};

/// Returns the step to which the camera rounds its readings, for example 0.5; 0 if no rounding is visible.
/// Merged points do not show it, so the points must not be thinned.
double roundingStep(const std::vector<HistoryPoint> &points);

/// Returns the seconds over which the slope is found: 60 s, or longer for a camera that rounds its readings,
/// up to 600 s, because the rounding must not hide 0.1 K per minute.
double slopeWindow(const BoundedHistory &history);

/// Returns the points after the last gap.
std::vector<HistoryPoint> sinceLastGap(std::vector<HistoryPoint> points);

/// Returns the median of the slopes between all pairs of points, which outliers hardly change (Theil, "A
/// rank-invariant method of linear and polynomial regression analysis", 1950; Sen, "Estimates of the
/// regression coefficient based on Kendall's tau", J. Am. Stat. Assoc. 63, 1968), over slopeWindow().
/// Returns no value if there are fewer than ten readings or less than half of the window. Readings before the
/// last gap are not used.
std::optional<SlopeEstimate> estimateSlope(const BoundedHistory &history);
