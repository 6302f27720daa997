#include "tools/kit/measure/thermal/DarkLevel.h"

#include "sdk/image/PixelFormat.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t partsPerSide = 12;
constexpr double percent = 100;

bool canBeMeasured(const PixelFormat *format)
{
    constexpr std::uint8_t deepest = 16;
    return format && format->depth <= deepest
        && (format->kind == PixelKind::Mono || format->kind == PixelKind::Bayer
            || format->kind == PixelKind::Rgb);
}

} // namespace

/// Adds the means of the parts of these lines to m_partMeans.
DarkMeter::Sums DarkMeter::addLines(
    const RawImage &picture, std::uint32_t firstLine, std::uint32_t lines, unsigned channels)
{
    const std::size_t width = std::size_t(picture.width) * channels;
    m_words.resize(width * lines);
    m_converter.toWords(picture, {0, firstLine, picture.width, lines}, m_words.data(), width);
    const std::size_t parts = std::min<std::size_t>(partsPerSide, width);
    Sums all;
    for (std::size_t part = 0; part < parts; ++part) {
        const std::size_t begin = width * part / parts;
        const std::size_t end = width * (part + 1) / parts;
        std::uint64_t sum = 0;
        for (std::size_t line = 0; line < lines; ++line) {
            for (std::size_t x = begin; x < end; ++x) {
                const std::uint64_t value = m_words[line * width + x];
                sum += value;
                all.squares += value * value;
                all.zeros += value == 0 ? 1 : 0;
            }
        }
        all.values += sum;
        m_partMeans.push_back(static_cast<double>(sum) / static_cast<double>((end - begin) * lines));
    }
    return all;
}

Sentence DarkMeter::measure(const RawImage &picture, DarkLevel &level)
{
    constexpr double brightestMean = 0.25; // Share of the range of the pixel values.
    constexpr double largestDifference = 0.05;
    constexpr double mostZeros = 0.1;
    const PixelFormat *const format = findPixelFormat(picture.pixelFormat);
    if (!canBeMeasured(format))
        return Sentence{QT_TRANSLATE_NOOP("Sentence",
            "The dark level of this pixel format cannot be measured; choose a Mono, Bayer or RGB format.")};
    const unsigned channels = ImageConverter::wordChannels(picture.pixelFormat);
    m_partMeans.clear();
    Sums sums;
    const std::uint32_t parts = std::min(partsPerSide, picture.height);
    for (std::uint32_t part = 0; part < parts; ++part) {
        const auto line = [&](std::uint32_t index) {
            return static_cast<std::uint32_t>(std::uint64_t(picture.height) * index / parts);
        };
        const Sums added = addLines(picture, line(part), line(part + 1) - line(part), channels);
        sums.values += added.values;
        sums.squares += added.squares;
        sums.zeros += added.zeros;
    }
    const double count = static_cast<double>(picture.width) * picture.height * channels;
    const double mean = static_cast<double>(sums.values) / count;
    const double range = std::exp2(format->depth) - 1;
    const auto [least, greatest] = std::minmax_element(m_partMeans.begin(), m_partMeans.end());
    if (mean > brightestMean * range || *greatest - *least > largestDifference * range)
        return Sentence{QT_TRANSLATE_NOOP(
            "Sentence", "The picture is not dark. Put the cap on the lens, or cover the lens completely.")};
    const double zeroShare = static_cast<double>(sums.zeros) / count;
    if (zeroShare > mostZeros)
        return Sentence{
            QT_TRANSLATE_NOOP("Sentence",
                "%1 % of the pixels are 0, which hides the dark level. Raise BlackLevel, so that the "
                "noise lies above 0."),
            {SentenceNumber{zeroShare * percent, 0}}};
    const double variance = std::max(0.0, static_cast<double>(sums.squares) / count - mean * mean);
    level = {mean, std::sqrt(variance), std::sqrt(variance / count), zeroShare};
    return {};
}

Sentence DarkMeter::hint(const DarkLevel &level)
{
    constexpr double enoughSpread
        = 0.35; // At this spread or above, rounding changes the mean by less than 3 % of a step.
    if (level.spread >= enoughSpread)
        return {};
    return Sentence{QT_TRANSLATE_NOOP("Sentence",
        "The noise is smaller than one step of the pixel format, which hides small changes of the dark "
        "level. "
        "Choose a pixel format with more bits, or a higher gain.")};
}
