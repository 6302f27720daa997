#include "tools/kit/measure/thermal/Forecast.h"

#include "tools/kit/measure/thermal/ExponentialFit.h"
#include "tools/kit/measure/thermal/SlopeEstimate.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t fewestPoints = 15;
constexpr double secondsPerMinute = 60;

std::vector<CurvePoint> fitPoints(const std::vector<HistoryPoint> &points)
{
    std::vector<CurvePoint> result;
    for (const HistoryPoint &point : points)
        result.push_back({point.middle(), point.mean, static_cast<double>(point.count)});
    return result;
}

/// Returns the noise of single points, from their second differences, which a slow curve hardly has; see
/// Gasser, Sroka and Jennen-Steinmetz, "Residual variance and residual pattern in nonlinear regression",
/// Biometrika 73, 1986. Rounding counts as noise.
/// @param step See roundingStep().
double noiseOf(const std::vector<HistoryPoint> &points, double step)
{
    constexpr double squaresOfWeights = 6; // 1, -2, 1
    double squares = 0;
    for (std::size_t index = 2; index < points.size(); ++index) {
        const double difference = points[index].mean - 2 * points[index - 1].mean + points[index - 2].mean;
        squares += difference * difference;
    }
    const double variance = squares / squaresOfWeights / static_cast<double>(points.size() - 2);
    return std::hypot(std::sqrt(variance), step / std::sqrt(12.0));
}

/// Returns by how many kelvin readings may differ from the curve apart from noise, because no camera follows
/// the curve exactly.
double toleranceOf(const ExponentialFit &fit, const std::vector<HistoryPoint> &points)
{
    constexpr double largest = 0.02;
    constexpr double share = 0.0005; // Share of the change, so a bend in a few early readings is refused.
    return std::min(largest, share * std::abs(fit.at(points.back().last) - fit.at(points.front().first)));
}

/// Returns true if the curve describes all points.
bool describes(const ExponentialFit &fit, double noise, double tolerance)
{
    constexpr double factor = 1.5;
    return fit.residual <= factor * noise + tolerance;
}

/// Returns true if the newest points do not leave the curve, however short their time is.
bool describesNewest(
    const ExponentialFit &fit, const std::vector<HistoryPoint> &newest, double step, double tolerance)
{
    constexpr double significant = 3;
    const double count = static_cast<double>(newest.size());
    double sum = 0;
    for (const HistoryPoint &point : newest)
        sum += point.mean - fit.at(point.middle());
    return std::abs(sum) / count < significant * noiseOf(newest, step) / std::sqrt(count) + tolerance;
}

bool isDetermined(const ExponentialFit &fit, double span)
{
    constexpr double shortestSpan = 0.1; // Share of the time constant.
    constexpr double largestScaleError = 0.4;
    constexpr double largestEndError = 0.5;
    return fit.isScaleInside && fit.scaleError < largestScaleError && fit.offsetError < largestEndError
        && span > shortestSpan * fit.scale;
}

} // namespace

double Forecast::at(double seconds) const
{
    return end + amplitude * std::exp(-(seconds - from) / timeConstant);
}

double Forecast::secondsToSteady(double seconds) const
{
    const double enough = std::max(steadyDistance, steadyPerMinute / secondsPerMinute * timeConstant);
    const double distance = std::abs(at(seconds) - end);
    return distance <= enough ? 0 : timeConstant * std::log(distance / enough);
}

std::optional<Forecast> forecast(const BoundedHistory &history)
{
    constexpr std::size_t mostPoints = 300;
    constexpr std::ptrdiff_t newestPoints = 10;
    constexpr double shorter = 1.5;
    constexpr double shortestTimeConstant = 5; // Seconds.
    constexpr double mostTimeConstants = 20; // Times the duration of the readings.
    if (history.isEmpty())
        return std::nullopt;
    const double now = history.newest().last;
    const std::vector<HistoryPoint> all = history.points();
    if (all.size() < fewestPoints)
        return std::nullopt;
    const std::vector<HistoryPoint> newest(all.end() - newestPoints, all.end());
    for (double span = now - all.front().first; span > 0; span /= shorter) {
        const auto begin = std::find_if(
            all.begin(), all.end(), [&](const HistoryPoint &point) { return point.last >= now - span; });
        if (all.end() - begin < static_cast<std::ptrdiff_t>(fewestPoints))
            return std::nullopt;
        const double step = roundingStep({begin, all.end()});
        const std::vector<HistoryPoint> few = thinned({begin, all.end()}, mostPoints);
        const std::vector<CurvePoint> points = fitPoints(few);
        const auto fit = fitExponential(points, shortestTimeConstant, mostTimeConstants * span);
        if (!fit)
            continue;
        const double tolerance = toleranceOf(*fit, few);
        if (!describes(*fit, noiseOf(few, step), tolerance)
            || !describesNewest(*fit, newest, step, tolerance))
            continue;
        if (!isDetermined(*fit, span))
            return std::nullopt;
        return Forecast{fit->offset, fit->offsetError, fit->scale, fit->scaleError * fit->scale,
            fit->amplitude, fit->origin};
    }
    return std::nullopt;
}
