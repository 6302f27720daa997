#include "tools/imageviewer/measuring/PictureRules.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double clippedShare = 0.001;
constexpr double minGamma = 0.1;
constexpr double maxGamma = 10;

double gainOf(MeasuredComponent component, const std::array<double, 3> &gains)
{
    switch (component) {
    case MeasuredComponent::Red:
        return gains[0];
    case MeasuredComponent::Green:
        return gains[1];
    case MeasuredComponent::Blue:
        return gains[2];
    default:
        return 1;
    }
}

bool hasBrightness(MeasuredComponent component)
{
    return component != MeasuredComponent::Alpha && component != MeasuredComponent::ChromaBlue
        && component != MeasuredComponent::ChromaRed;
}

/// Returns the number of entries from the first one on that contain, together, at most `limit` pixels.
template <typename Iterator>
std::ptrdiff_t entriesWithin(Iterator first, Iterator last, double limit)
{
    double pixels = 0;
    const Iterator found = std::find_if(first, last, [&pixels, limit](std::uint64_t count) {
        pixels += static_cast<double>(count);
        return pixels > limit;
    });
    return found - first;
}

} // namespace

ContrastCurve fittedContrast(
    const Histogram &histogram, const std::array<double, 3> &gains, const ContrastCurve &present)
{
    double black = 1;
    double white = 0;
    for (const ComponentHistogram &component : histogram.components) {
        if (!hasBrightness(component.component))
            continue;
        const auto &counts = component.counts;
        const double limit = clippedShare * static_cast<double>(component.pixels);
        const double scale = gainOf(component.component, gains)
            / static_cast<double>(std::max<std::size_t>(counts.size(), 2) - 1);
        const auto dark = static_cast<double>(entriesWithin(counts.begin(), counts.end(), limit));
        const auto bright = static_cast<double>(entriesWithin(counts.rbegin(), counts.rend(), limit));
        black = std::min(black, scale * dark);
        white = std::max(white, scale * (static_cast<double>(counts.size()) - 1 - bright));
    }
    white = std::min(white, 1.0);
    return black < white ? ContrastCurve{black, white, present.gamma} : ContrastCurve{0, 1, present.gamma};
}

double gammaForMiddle(double brightness)
{
    const double inside = std::clamp(brightness, 0.001, 0.999);
    return std::clamp(std::log(0.5) / std::log(inside), minGamma, maxGamma);
}
