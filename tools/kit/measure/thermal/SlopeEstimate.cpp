#include "tools/kit/measure/thermal/SlopeEstimate.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double shortestWindow = 60;
constexpr double longestWindow = 600;
constexpr double minute = 60;
constexpr double normalScale = 1.4826; // Standard deviation of a normal distribution per median deviation.

double median(std::vector<double> &values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double medianSlope(const std::vector<HistoryPoint> &points)
{
    std::vector<double> slopes;
    slopes.reserve(points.size() * (points.size() - 1) / 2);
    for (std::size_t later = 1; later < points.size(); ++later) {
        for (std::size_t earlier = 0; earlier < later; ++earlier)
            slopes.push_back((points[later].mean - points[earlier].mean)
                / (points[later].middle() - points[earlier].middle()));
    }
    return median(slopes);
}

/// Returns the standard deviation of the points about a line of this slope.
double spread(const std::vector<HistoryPoint> &points, double slope)
{
    std::vector<double> distances;
    for (const HistoryPoint &point : points)
        distances.push_back(point.mean - slope * point.middle());
    const double offset = median(distances);
    for (double &distance : distances)
        distance = std::abs(distance - offset);
    return normalScale * median(distances);
}

} // namespace

double roundingStep(const std::vector<HistoryPoint> &points)
{
    constexpr double tolerance = 0.002; // Share of a step; 32-bit floating-point numbers are not exact.
    const auto isReading = [](const HistoryPoint &point) { return point.count == 1; };
    if (std::none_of(points.begin(), points.end(), isReading))
        return 0;
    for (const double step : {1.0, 0.5, 0.25, 0.125, 0.1, 0.0625, 0.05, 0.025, 0.02, 0.01}) {
        const auto isMultiple = [&](const HistoryPoint &point) {
            const double steps = point.mean / step;
            return !isReading(point) || std::abs(steps - std::round(steps)) < tolerance;
        };
        if (std::all_of(points.begin(), points.end(), isMultiple))
            return step;
    }
    return 0;
}

double slopeWindow(const BoundedHistory &history)
{
    constexpr double hiddenPerMinute = 0.1;
    if (history.isEmpty())
        return shortestWindow;
    const double step = roundingStep(history.since(history.newest().last - longestWindow));
    return std::clamp(step / hiddenPerMinute * minute, shortestWindow, longestWindow);
}

std::vector<HistoryPoint> sinceLastGap(std::vector<HistoryPoint> points)
{
    const auto gap = std::find_if(
        points.rbegin(), points.rend(), [](const HistoryPoint &point) { return point.isAfterGap; });
    if (gap != points.rend())
        points.erase(points.begin(), gap.base() - 1);
    return points;
}

std::optional<SlopeEstimate> estimateSlope(const BoundedHistory &history)
{
    constexpr std::size_t fewestReadings = 10;
    constexpr std::size_t mostPoints = 120;
    if (history.isEmpty())
        return std::nullopt;
    const double window = slopeWindow(history);
    const std::vector<HistoryPoint> points = sinceLastGap(history.since(history.newest().last - window));
    const double span = points.back().last - points.front().first;
    if (points.size() < fewestReadings || span < window / 2)
        return std::nullopt;
    const std::vector<HistoryPoint> few = thinned(points, mostPoints);
    const double slope = medianSlope(few);
    const double noise = spread(few, slope) * std::sqrt(12.0 / static_cast<double>(few.size()));
    const double rounding = roundingStep(points) / std::sqrt(12.0);
    return SlopeEstimate{slope * minute, std::hypot(noise, rounding) / span * minute, span};
}
