#include "tools/kit/measure/linescan/GreyPicture.h"

#include "sdk/image/PixelFormat.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::size_t histogramBins = 256;

int scaleFor(const RawImage &picture, const Region &region)
{
    const double pixels = static_cast<double>(region.width) * region.height;
    const int scale = std::max(1, static_cast<int>(std::ceil(std::sqrt(pixels / workingPixels))));
    const PixelFormat *const format = findPixelFormat(picture.pixelFormat);
    const bool isBayer = format && format->kind == PixelKind::Bayer;
    return isBayer ? (scale + 1) / 2 * 2 : scale; // Whole cells of the pattern.
}

/// Adds one line of the camera's picture to the sums of a line.
void addLine(const std::uint16_t *words, unsigned channels, int scale, std::vector<float> &sums)
{
    const unsigned channel = channels > 1 ? 1 : 0;
    const std::uint16_t *word = words + channel;
    for (float &sum : sums)
        for (int i = 0; i < scale; ++i, word += channels)
            sum += *word;
}

} // namespace

GreyPicture greyPicture(ImageConverter &converter, const RawImage &picture, const Region &region)
{
    GreyPicture grey;
    grey.scale = scaleFor(picture, region);
    if (const PixelFormat *const format = findPixelFormat(picture.pixelFormat))
        grey.fullScale = std::ldexp(1.0F, std::min<int>(format->depth, 16)) - 1;
    grey.width = static_cast<int>(region.width) / grey.scale;
    grey.height = static_cast<int>(region.height) / grey.scale;
    const unsigned channels = ImageConverter::wordChannels(picture.pixelFormat);
    const std::size_t stride = static_cast<std::size_t>(region.width) * channels;
    std::vector<std::uint16_t> words(stride * static_cast<std::size_t>(grey.scale));
    std::vector<float> sums(static_cast<std::size_t>(grey.width));
    const float share = 1 / static_cast<float>(grey.scale * grey.scale);
    grey.values.reserve(sums.size() * static_cast<std::size_t>(grey.height));
    for (int y = 0; y < grey.height; ++y) {
        Region lines = region;
        lines.y += static_cast<std::uint32_t>(y * grey.scale);
        lines.height = static_cast<std::uint32_t>(grey.scale);
        converter.toWords(picture, lines, words.data(), stride);
        std::fill(sums.begin(), sums.end(), 0.0F);
        for (int i = 0; i < grey.scale; ++i)
            addLine(words.data() + static_cast<std::size_t>(i) * stride, channels, grey.scale, sums);
        std::transform(sums.begin(), sums.end(), std::back_inserter(grey.values),
            [share](float sum) { return sum * share; });
    }
    return grey;
}

Threshold otsuThreshold(const std::vector<float> &values)
{
    const auto [low, high] = std::minmax_element(values.begin(), values.end());
    const float minimum = *low;
    const float step = (*high - minimum) / histogramBins;
    if (step <= 0)
        return {minimum, minimum, minimum};
    std::array<double, histogramBins> counts{};
    for (const float value : values)
        ++counts[std::min(histogramBins - 1, static_cast<std::size_t>((value - minimum) / step))];
    double allCount = 0;
    double allSum = 0;
    for (std::size_t i = 0; i < histogramBins; ++i) {
        allCount += counts[i];
        allSum += counts[i] * static_cast<double>(i);
    }
    double best = -1;
    double darkCount = 0;
    double darkSum = 0;
    Threshold threshold;
    for (std::size_t i = 0; i + 1 < histogramBins; ++i) {
        darkCount += counts[i];
        darkSum += counts[i] * static_cast<double>(i);
        if (darkCount == 0 || darkCount == allCount)
            continue;
        const double darkMean = darkSum / darkCount;
        const double brightMean = (allSum - darkSum) / (allCount - darkCount);
        const double variance
            = darkCount * (allCount - darkCount) * (brightMean - darkMean) * (brightMean - darkMean);
        if (variance <= best)
            continue;
        best = variance;
        // Between the classes, so the borders of shapes are where the brightness is half way.
        threshold = {minimum + step * static_cast<float>((darkMean + brightMean + 1) / 2),
            minimum + step * static_cast<float>(darkMean + 0.5),
            minimum + step * static_cast<float>(brightMean + 0.5)};
    }
    return threshold;
}
