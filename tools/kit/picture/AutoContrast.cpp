#include "tools/kit/picture/AutoContrast.h"

#include "sdk/image/ColorLines.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr double clippedShare = 0.001;

using Counts = std::vector<std::uint64_t>;

/// Returns how often the components of each colour have each value.
std::array<Counts, 3> countValues(
    const RawImage &picture, const PixelLayout &layout, const Region &region, Demosaicing demosaicing)
{
    std::array<Counts, 3> counts;
    for (unsigned channel = 0; channel < layout.screenChannels(); ++channel)
        counts[channel].resize(std::size_t(1) << std::min<unsigned>(layout.format.depth, 16));
    ColorLines<std::uint16_t> lines(bestKernels());
    lines.start(picture, layout, region, demosaicing);
    for (std::uint32_t y = 0; y < region.height; ++y) {
        const auto channels = lines.line(y).channels;
        for (unsigned channel = 0; channel < layout.screenChannels(); ++channel)
            for (std::size_t x = 0; x < region.width; ++x)
                ++counts[channel][channels[channel][x]];
    }
    return counts;
}

/// Returns the value below which `share` of the pixels are.
std::size_t quantile(const Counts &counts, double share)
{
    const auto pixels = std::accumulate(counts.begin(), counts.end(), std::uint64_t(0));
    const double limit = static_cast<double>(pixels) * share;
    std::uint64_t below = 0;
    std::size_t value = 0;
    while (value + 1 < counts.size()) {
        below += counts[value];
        if (static_cast<double>(below) > limit)
            break;
        ++value;
    }
    return value;
}

} // namespace

ContrastCurve autoContrast(const RawImage &picture, const Region &region, const DisplaySettings &settings)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const std::array<Counts, 3> counts = countValues(picture, layout, region, settings.demosaicing);
    const unsigned channels = layout.screenChannels();
    const double highest = static_cast<double>(counts[0].size() - 1);
    double black = 1;
    double white = 0;
    for (unsigned channel = 0; channel < channels; ++channel) {
        const double scale = (channels == 1 ? 1 : settings.gains[channel]) / highest;
        const Counts &component = counts[channel];
        black = std::min(black, static_cast<double>(quantile(component, clippedShare)) * scale);
        white = std::max(white, static_cast<double>(quantile(component, 1 - clippedShare)) * scale);
    }
    // A picture of one brightness gets a curve too: the steepest one that separates two values.
    black = std::min(black, 1 - 1 / highest);
    white = std::clamp(white, black + 1 / highest, 1.0);
    return {black, white, settings.curve.gamma};
}
