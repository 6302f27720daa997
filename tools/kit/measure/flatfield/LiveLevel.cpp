#include "tools/kit/measure/flatfield/LiveLevel.h"

#include "tools/kit/measure/flatfield/FrameStack.h"

#include <algorithm>
#include <array>
#include <vector>

std::optional<LiveLevel> measureLiveLevel(const RawImage &picture, ImageConverter &converter)
{
    constexpr std::uint32_t maxLinePairs = 64;
    if (!isFlatFieldFormat(picture.pixelFormat) || picture.width == 0 || picture.height == 0)
        return std::nullopt;
    const auto highest = static_cast<std::uint16_t>((1U << findPixelFormat(picture.pixelFormat)->depth) - 1);
    std::array<double, 4> sums{}; // The four places of a Bayer pattern; alike for grey.
    std::array<double, 4> counts{};
    double clipped = 0;
    std::vector<std::uint16_t> words(std::size_t(picture.width) * 2);
    const std::uint32_t step = std::max(2U, picture.height / maxLinePairs / 2 * 2);
    for (std::uint32_t y = 0; y < picture.height; y += step) {
        const std::uint32_t lines = std::min(2U, picture.height - y);
        converter.toWords(picture, {0, y, picture.width, lines}, words.data(), picture.width);
        for (std::size_t i = 0; i < std::size_t(picture.width) * lines; ++i) {
            const std::size_t place = i / picture.width * 2 + i % picture.width % 2;
            sums[place] += words[i];
            ++counts[place];
            clipped += words[i] >= highest;
        }
    }
    LiveLevel level;
    double count = 0;
    for (std::size_t place = 0; place < sums.size(); ++place) {
        level.share = std::max(level.share, sums[place] / std::max(1.0, counts[place]) / highest);
        count += counts[place];
    }
    level.clippedShare = clipped / count;
    return level;
}
