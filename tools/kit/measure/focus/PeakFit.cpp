#include "tools/kit/measure/focus/PeakFit.h"

#include "tools/kit/measure/focus/LeastSquares.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {
using PeakPoints = std::vector<FocusPoint>;

constexpr double halfLevel = 0.5;
constexpr double bracketLevel = 0.9; // The rise that may remain at both ends of the points.
constexpr int fitRounds = 20;
constexpr double minGaps = 1.6; // Half of the fitted range, in distances between neighbouring points.

double levelOf(const PeakPoints &points, std::size_t top, double share)
{
    const auto lowest = std::min_element(points.begin(), points.end(),
        [](const FocusPoint &a, const FocusPoint &b) { return a.sharpness < b.sharpness; });
    return lowest->sharpness + share * (points[top].sharpness - lowest->sharpness);
}

/// Returns the distance from the highest point to where the sharpness falls to the level; nothing if it does
/// not. @param direction 1 to the right, -1 to the left.
std::optional<double> distanceToLevel(const PeakPoints &points, std::size_t top, int direction, double level)
{
    const auto count = static_cast<std::ptrdiff_t>(points.size());
    for (auto i = static_cast<std::ptrdiff_t>(top) + direction; i >= 0 && i < count; i += direction) {
        const FocusPoint &point = points[static_cast<std::size_t>(i)];
        if (point.sharpness > level)
            continue;
        const FocusPoint &before = points[static_cast<std::size_t>(i - direction)];
        const double share = (before.sharpness - level) / (before.sharpness - point.sharpness);
        return std::abs(before.position + share * (point.position - before.position) - points[top].position);
    }
    return {};
}

/// Returns the largest distance between neighbouring positions next to the highest point.
double gapAt(const PeakPoints &points, std::size_t top)
{
    double left = 0;
    for (std::size_t i = top; i > 0 && left == 0; --i)
        left = points[top].position - points[i - 1].position;
    double right = 0;
    for (std::size_t i = top + 1; i < points.size() && right == 0; ++i)
        right = points[i].position - points[top].position;
    return std::max(left, right);
}

/// One round: fits the parabola around `center`. Returns the coefficients of 1, t and t², in units of
/// `width`.
std::optional<std::vector<double>> parabolaAround(const PeakPoints &points, double center, double width)
{
    LeastSquares fit(3);
    for (const FocusPoint &point : points) {
        const double t = (point.position - center) / width;
        if (std::abs(t) >= 1 || point.sharpness <= 0)
            continue;
        const double taper = (1 - t * t) * (1 - t * t);
        fit.add({1, t, t * t}, std::log(point.sharpness), taper);
    }
    return fit.solve();
}

/// Moves the peak to the top of the parabola until it stays there. Returns false if there is no parabola.
bool refine(const PeakPoints &points, double width, FocusPeak &peak)
{
    for (int round = 0; round < fitRounds; ++round) {
        const auto parabola = parabolaAround(points, peak.position, width);
        if (!parabola || parabola->at(2) >= 0)
            return false;
        const double step = std::clamp(-parabola->at(1) / (2 * parabola->at(2)), -0.5, 0.5);
        peak.position
            = std::clamp(peak.position + step * width, points.front().position, points.back().position);
        peak.sharpness
            = std::exp(parabola->at(0) - parabola->at(1) * parabola->at(1) / (4 * parabola->at(2)));
        if (std::abs(step) < 1e-4)
            break;
    }
    return true;
}
} // namespace

std::optional<FocusPeak> fitPeak(std::vector<FocusPoint> points)
{
    if (points.size() < 3)
        return {};
    std::sort(points.begin(), points.end(),
        [](const FocusPoint &a, const FocusPoint &b) { return a.position < b.position; });
    const auto highest = std::max_element(points.begin(), points.end(),
        [](const FocusPoint &a, const FocusPoint &b) { return a.sharpness < b.sharpness; });
    const auto top = static_cast<std::size_t>(highest - points.begin());
    if (highest->sharpness <= 0)
        return {};
    const auto left = distanceToLevel(points, top, -1, levelOf(points, top, halfLevel));
    const auto right = distanceToLevel(points, top, 1, levelOf(points, top, halfLevel));
    if (!left && !right)
        return {};
    FocusPeak peak{highest->position, highest->sharpness, 0, false};
    peak.halfWidth = left && right ? (*left + *right) / 2 : left.value_or(right.value_or(0));
    const double bracket = levelOf(points, top, bracketLevel);
    peak.isBracketed = distanceToLevel(points, top, -1, bracket) && distanceToLevel(points, top, 1, bracket);
    const FocusPeak coarse = peak;
    if (!peak.isBracketed || !refine(points, std::max(peak.halfWidth, minGaps * gapAt(points, top)), peak))
        return coarse; // The highest point is the best that is known.
    return peak;
}
