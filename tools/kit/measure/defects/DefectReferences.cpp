#include "tools/kit/measure/defects/DefectReferences.h"

#include "tools/kit/measure/defects/TypicalPixel.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double maxDarkShare = 0.25; // Share of the value range; black levels are far below this.
constexpr double maxDarkDifference = 0.03; // Difference between blocks, as a share of the value range.
constexpr double minSignalShare = 0.1; // Share of the value range above the dark level.
constexpr double clippedShare = 0.97; // Share of the highest value; noise lowers the mean of a clipped pixel.
constexpr double maxClippedPixels = 0.01;
constexpr double maxDrift = 0.05; // Change of all blocks together, between both halves of the images.
constexpr double maxMovement = 0.02; // Change of a block, in addition to the drift.
constexpr double maxStep = 0.15; // Between neighbouring blocks; a strong shading has 0.05.
constexpr double maxDeviating = 0.02; // Share of all pixels.

double percent(double share)
{
    return share * 100;
}

/// Returns the mean of each block over a range of the images.
std::vector<double> blocks(const PixelStatistics &statistics, std::size_t first, std::size_t end)
{
    std::vector<double> sums(statistics.blockMeans().front().size());
    for (std::size_t image = first; image < end; ++image)
        for (std::size_t i = 0; i < sums.size(); ++i)
            sums[i] += statistics.blockMeans()[image][i] / static_cast<double>(end - first);
    return sums;
}

std::vector<double> blocks(const PixelStatistics &statistics)
{
    return blocks(statistics, 0, statistics.images());
}

double meanOf(const std::vector<double> &numbers)
{
    return std::accumulate(numbers.begin(), numbers.end(), 0.0) / static_cast<double>(numbers.size());
}

/// Returns the number that is greater than this share of the numbers.
double percentile(std::vector<double> numbers, double share)
{
    const auto place = numbers.begin()
        + static_cast<std::ptrdiff_t>(share * static_cast<double>(numbers.size() - 1) + 0.5);
    std::nth_element(numbers.begin(), place, numbers.end());
    return *place;
}

double clippedPixels(const PixelStatistics &statistics)
{
    const StatisticsLayout &layout = statistics.layout();
    std::size_t count = 0;
    for (std::uint32_t y = 0; y < layout.height; ++y) {
        const float *const means = statistics.means(y);
        count += static_cast<std::size_t>(std::count_if(
            means, means + layout.width, [&](float mean) { return mean >= clippedShare * layout.maxValue; }));
    }
    return static_cast<double>(count) / static_cast<double>(statistics.pixels());
}

/// Returns the blocks of both halves of the images, without the dark level.
struct Halves
{
    std::vector<double> first;
    std::vector<double> second;
};
Halves signalHalves(const PixelStatistics &bright, double darkLevel)
{
    const std::size_t middle = bright.images() / 2;
    Halves halves{blocks(bright, 0, middle), blocks(bright, middle, bright.images())};
    for (std::vector<double> *half : {&halves.first, &halves.second})
        for (double &signal : *half)
            signal = std::max(1e-6, signal - darkLevel);
    return halves;
}

Sentence changeProblem(const Halves &halves)
{
    const double drift = meanOf(halves.second) / meanOf(halves.first);
    if (std::abs(drift - 1) > maxDrift)
        return {
            QT_TRANSLATE_NOOP("Measure",
                "The brightness changed by %1 % while the bright images were taken. Use a steady light, and "
                "take the images again."),
            {SentenceNumber{percent(std::abs(drift - 1)), 1}}};
    std::vector<double> changes;
    for (std::size_t i = 0; i < halves.first.size(); ++i)
        changes.push_back(std::abs(halves.second[i] / (halves.first[i] * drift) - 1));
    if (percentile(changes, 0.99) > maxMovement)
        return {QT_TRANSLATE_NOOP("Measure",
            "Something moved while the bright images were taken. Point the camera at an evenly lit surface "
            "without objects, keep it still, and take the images again.")};
    return {};
}

Sentence structureProblem(const PixelStatistics &bright, double darkLevel)
{
    const std::vector<double> levels = blocks(bright);
    const std::size_t columns = bright.blockColumns();
    std::vector<double> steps;
    const auto addStep = [&](std::size_t a, std::size_t b) {
        const auto [low, high]
            = std::minmax({std::max(1e-6, levels[a] - darkLevel), std::max(1e-6, levels[b] - darkLevel)});
        steps.push_back(high / low - 1);
    };
    for (std::size_t i = 0; i < levels.size(); ++i) {
        if ((i + 1) % columns != 0)
            addStep(i, i + 1);
        if (i + columns < levels.size())
            addStep(i, i + columns);
    }
    if (percentile(steps, 0.99) <= maxStep)
        return {};
    return {QT_TRANSLATE_NOOP("Measure",
        "The bright images show a scene. Point the camera at an evenly lit surface without objects, for "
        "example "
        "white paper close to the lens and out of focus, and take the images again.")};
}

} // namespace

Sentence darkProblem(const PixelStatistics &dark)
{
    const double maxValue = dark.layout().maxValue;
    const std::vector<double> levels = blocks(dark);
    const double level = percentile(levels, 0.5);
    if (level > maxDarkShare * maxValue)
        return {QT_TRANSLATE_NOOP("Measure",
                    "The dark images have %1 % of the highest value: light reaches the sensor, or the "
                    "exposure is "
                    "too long. Cover the lens, then take the dark images again."),
            {SentenceNumber{percent(level / maxValue)}}};
    if (percentile(levels, 0.95) - percentile(levels, 0.05) > maxDarkDifference * maxValue)
        return {QT_TRANSLATE_NOOP("Measure",
            "The dark images show something: light reaches the sensor. Cover the lens completely, then take "
            "the "
            "dark images again.")};
    const TypicalPixel pixel = typicalPixel(dark, 0, 0);
    if (pixel.mean <= 3 * std::sqrt(pixel.variance))
        return {QT_TRANSLATE_NOOP("Measure",
            "Many pixels of the dark images have the value 0, so their noise is not visible. Increase the "
            "black "
            "level (BlackLevel), then take the dark images again.")};
    return {};
}

Sentence brightProblem(const PixelStatistics &dark, const PixelStatistics &bright)
{
    const double darkLevel = meanOf(blocks(dark));
    const double range = dark.layout().maxValue - darkLevel;
    const double signal = meanOf(blocks(bright)) - darkLevel;
    if (signal < minSignalShare * range)
        return {QT_TRANSLATE_NOOP("Measure",
                    "The bright images are too dark: they use %1 % of the value range. Uncover the lens, use "
                    "more "
                    "light or a longer exposure, and take the images again."),
            {SentenceNumber{percent(std::max(0.0, signal / range))}}};
    const double clipped = clippedPixels(bright);
    if (clipped > maxClippedPixels)
        return {
            QT_TRANSLATE_NOOP("Measure",
                "%1 % of the pixels of the bright images have the highest value. Use less light or a shorter "
                "exposure, and take the images again."),
            {SentenceNumber{percent(clipped)}}};
    if (bright.images() > 1) {
        if (Sentence change = changeProblem(signalHalves(bright, darkLevel)); !change.isEmpty())
            return change;
    }
    return structureProblem(bright, darkLevel);
}

Sentence findingsProblem(const DefectFindings &findings)
{
    const auto defects = std::count_if(findings.candidates.begin(), findings.candidates.end(),
        [](const DefectCandidate &candidate) { return largestDeviation(candidate) >= usualThreshold; });
    const double share = static_cast<double>(defects) / static_cast<double>(findings.examinedPixels);
    if (share <= maxDeviating)
        return {};
    return {QT_TRANSLATE_NOOP("Measure",
                "%1 % of the pixels deviate from their neighbours, so the surface had a structure, or light "
                "reached "
                "the sensor during the dark images. Take the images again."),
        {SentenceNumber{percent(share), 1}}};
}
