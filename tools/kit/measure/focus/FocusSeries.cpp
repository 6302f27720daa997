#include "tools/kit/measure/focus/FocusSeries.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {
constexpr double minPeakRatio = 1.3; // Highest to lowest sharpness of a region that has a peak.

/// The samples of one region.
struct RegionSamples
{
    std::vector<FocusPoint> points;
    const RegionFocus *sharpest = nullptr;
    double lowest = 0;
};

RegionSamples samplesOf(const std::vector<FocusSample> &samples, std::size_t region)
{
    RegionSamples result;
    for (const FocusSample &sample : samples) {
        const RegionFocus &focus = sample.measurement.regions[region];
        if (focus.state == RegionFocus::State::TooDark || focus.state == RegionFocus::State::Clipped)
            continue;
        if (!result.sharpest || focus.sharpness > result.sharpest->sharpness)
            result.sharpest = &focus;
        result.lowest = result.points.empty() ? focus.sharpness : std::min(result.lowest, focus.sharpness);
        result.points.push_back({sample.position, focus.sharpness});
    }
    return result;
}

/// Returns the sharpness between the two points next to the position, relative to the highest one.
double shareAt(std::vector<FocusPoint> points, double position, double peak)
{
    std::sort(points.begin(), points.end(),
        [](const FocusPoint &a, const FocusPoint &b) { return a.position < b.position; });
    const auto next = std::find_if(points.begin(), points.end(),
        [position](const FocusPoint &point) { return point.position >= position; });
    if (next == points.end())
        return points.back().sharpness / peak;
    if (next == points.begin() || next->position == position)
        return next->sharpness / peak;
    const FocusPoint &before = *(next - 1);
    const double share = (position - before.position) / (next->position - before.position);
    return (before.sharpness + share * (next->sharpness - before.sharpness)) / peak;
}

std::vector<FocusSample> usableSamples(const std::vector<FocusSample> &samples)
{
    std::vector<FocusSample> usable;
    std::copy_if(samples.begin(), samples.end(), std::back_inserter(usable),
        [](const FocusSample &sample) { return sample.measurement.isExposed; });
    return usable;
}
} // namespace

FocusAnalysis analyseFocus(const std::vector<FocusSample> &samples)
{
    FocusAnalysis analysis;
    const std::vector<FocusSample> usable = usableSamples(samples);
    if (usable.empty())
        return analysis;
    const FocusMeasurement &first = usable.front().measurement;
    std::vector<FocusPoint> total;
    for (const FocusSample &sample : usable)
        total.push_back({sample.position, sample.measurement.sharpness});
    analysis.total = fitPeak(total);

    std::vector<SurfacePoint> surface;
    std::vector<RegionSamples> regions;
    for (std::size_t i = 0; i < first.grid.size(); ++i) {
        RegionSamples &region = regions.emplace_back(samplesOf(usable, i));
        FocusAnalysis::RegionPeak &result = analysis.regions.emplace_back();
        if (!region.sharpest || !region.sharpest->isUsable()
            || region.sharpest->sharpness < minPeakRatio * region.lowest)
            continue;
        result.peak = fitPeak(region.points);
        if (result.peak && result.peak->isBracketed)
            surface.push_back({region.sharpest->centerX / first.width - 0.5,
                region.sharpest->centerY / first.height - 0.5, result.peak->position});
    }
    analysis.surface = fitSurface(surface, first.grid.rows == 1);
    if (analysis.surface)
        analysis.best = analysis.surface->meanPosition();
    else if (analysis.total)
        analysis.best = analysis.total->position;
    for (std::size_t i = 0; analysis.best && i < regions.size(); ++i)
        if (FocusAnalysis::RegionPeak &region = analysis.regions[i]; region.peak)
            region.shareAtBest
                = std::min(1.0, shareAt(regions[i].points, *analysis.best, region.peak->sharpness));
    return analysis;
}
