#include "tools/kit/picture/AutoContrast.h"

#include "sdk/image/ColorLines.h"

#include <algorithm>
#include <iterator>

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

/// Returns how many entries from the begin on contain, together, at most `limit` pixels; at least one
/// remains.
template <typename Iterator>
std::size_t entriesWithin(Iterator begin, Iterator end, double limit)
{
    std::uint64_t pixels = 0;
    Iterator entry = begin;
    for (; std::next(entry) != end; ++entry) {
        pixels += *entry;
        if (static_cast<double>(pixels) > limit)
            break;
    }
    return static_cast<std::size_t>(std::distance(begin, entry));
}

} // namespace

ContrastCurve autoContrast(const RawImage &picture, const Region &region, const DisplaySettings &settings)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const std::array<Counts, 3> counts = countValues(picture, layout, region, settings.demosaicing);
    const unsigned channels = layout.screenChannels();
    const std::size_t highestValue = counts[0].size() - 1;
    const auto highest = static_cast<double>(highestValue);
    const double limit = clippedShare * region.width * region.height;
    double black = 1;
    double white = 0;
    for (unsigned channel = 0; channel < channels; ++channel) {
        const double scale = (channels == 1 ? 1 : settings.gains[channel]) / highest;
        const Counts &component = counts[channel];
        const std::size_t darkest = entriesWithin(component.begin(), component.end(), limit);
        const std::size_t brightest
            = highestValue - entriesWithin(component.rbegin(), component.rend(), limit);
        black = std::min(black, static_cast<double>(darkest) * scale);
        white = std::max(white, static_cast<double>(brightest) * scale);
    }
    // A picture of one brightness gets a curve too: the steepest one that separates two values.
    black = std::min(black, 1 - 1 / highest);
    white = std::clamp(white, black + 1 / highest, 1.0);
    return {black, white, settings.curve.gamma};
}
