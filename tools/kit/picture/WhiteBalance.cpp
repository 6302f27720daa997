#include "tools/kit/picture/WhiteBalance.h"

#include "sdk/image/PixelLayout.h"
#include "tools/kit/picture/ClipMarks.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

constexpr double darkestMean = 0.02;
constexpr double mostClipped = 0.01;

bool isClipped(const RawImage &picture, const Region &region)
{
    ClipMarks marks;
    std::size_t clipped = 0;
    for (std::uint32_t y = 0; y < region.height; ++y) {
        const std::uint8_t *const line = marks.line(picture, region.x, region.y + y, region.width);
        clipped += static_cast<std::size_t>(std::count_if(
            line, line + region.width, [](std::uint8_t mark) { return (mark & ClipMarks::bright) != 0; }));
    }
    return static_cast<double>(clipped) > mostClipped * region.width * region.height;
}

/// Returns the mean of red, green and blue as shares of their range.
std::array<double, 3> colorMeans(const RawImage &picture, const PixelLayout &layout, const Region &region)
{
    ImageConverter converter;
    std::vector<std::uint16_t> words(std::size_t(3) * region.width);
    std::array<double, 3> means{};
    for (std::uint32_t y = 0; y < region.height; ++y) {
        converter.toColorWords(
            picture, {region.x, region.y + y, region.width, 1}, Demosaicing::Bilinear, words.data(), 0);
        for (std::size_t i = 0; i < words.size(); ++i)
            means[i % 3] += words[i];
    }
    const double highest = (1 << std::min<int>(layout.format.depth, 16)) - 1;
    for (double &mean : means)
        mean /= highest * region.width * region.height;
    return means;
}

} // namespace

WhiteBalance whiteBalance(const RawImage &picture, const Region &region)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    if (layout.screenChannels() == 1)
        return {GreyPatch::WithoutColor, {1, 1, 1}};
    if (isClipped(picture, region))
        return {GreyPatch::Clipped, {1, 1, 1}};
    const auto [red, green, blue] = colorMeans(picture, layout, region);
    if (std::min({red, green, blue}) < darkestMean)
        return {GreyPatch::TooDark, {1, 1, 1}};
    return {GreyPatch::Usable, {green / red, 1, green / blue}};
}
