#include "tools/kit/measure/flatfield/ReferenceChecks.h"

#include "tools/kit/measure/flatfield/ShadingGrid.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

using PartLevels = FrameStack::PartLevels;

// Shares of the range of values.
constexpr double highestDarkLevel = 0.1;
constexpr double darkStructureLimit = 0.02;
constexpr double lowestUsableLevel = 0.1;

constexpr double clippedLimit = 0.002; // Share of the values; defect pixels are fewer.
constexpr double blackLimit = 0.01;
constexpr double quantizedVariance = 0.24; // EMVA 1288 4.0: below, rounding hides the noise.
constexpr double sceneChangeLimit = 0.01; // Relative change of a part of the picture.
constexpr double flickerLimit = 0.02; // Relative standard deviation of the images' levels.
constexpr double textureLimit = 0.01;
constexpr std::uint32_t textureCells = 24;
constexpr double percent = 100;

SentenceNumber percentOf(double share, int decimals = 0)
{
    return {share * percent, decimals};
}

double meanOf(const PartLevels &levels)
{
    return std::accumulate(levels.begin(), levels.end(), 0.0) / static_cast<double>(levels.size());
}

/// Returns the mean of each part over all images.
PartLevels meanParts(const FrameStack &stack)
{
    PartLevels sums{};
    for (const PartLevels &levels : stack.partLevels())
        std::transform(sums.begin(), sums.end(), levels.begin(), sums.begin(), std::plus<float>());
    for (float &sum : sums)
        sum /= static_cast<float>(stack.count());
    return sums;
}

/// How much the images differ from each other.
struct StackChanges
{
    double flicker = 0; ///< Relative standard deviation of the level of the whole picture.
    double scene = 0; ///< The same for the part that changes most, beyond the whole picture and the noise.
};

StackChanges changesOf(const FrameStack &stack, double darkLevel)
{
    const PartLevels means = meanParts(stack);
    const double level = std::max(1.0, meanOf(means) - darkLevel);
    StackChanges changes;
    std::array<double, std::tuple_size_v<PartLevels>> squares{};
    for (const PartLevels &levels : stack.partLevels()) {
        const double imageLevel = meanOf(levels) - darkLevel;
        changes.flicker += (imageLevel / level - 1) * (imageLevel / level - 1);
        for (std::size_t part = 0; part < levels.size(); ++part) {
            const double expected = (double(means[part]) - darkLevel) * imageLevel / level;
            const double change = (double(levels[part]) - darkLevel - expected) / level;
            squares[part] += change * change;
        }
    }
    const auto count = static_cast<double>(stack.count());
    const double noise = stack.temporalVariance() / (level * level) / stack.valuesPerPart();
    const double largest = *std::max_element(squares.begin(), squares.end()) / count;
    constexpr double noiseMargin = 4; // The largest of 64 parts exceeds the expected variance.
    changes.scene = std::sqrt(std::max(0.0, largest - noiseMargin * noise));
    changes.flicker = std::sqrt(changes.flicker / count);
    return changes;
}

/// Returns the root mean square of ln(a) - ln(b) - ln(c) + ln(d) for all squares of four neighbouring cells.
/// Whatever depends on the column or on the line alone cancels, and smooth shading nearly does.
double textureOf(const ChannelMosaic &mosaic, std::size_t channel, const std::vector<float> &signal)
{
    const ShadingGrid grid(mosaic, channel, signal, textureCells);
    const auto logarithm = [&](std::size_t column, std::size_t line) {
        return std::log(std::max(1e-3, grid.cells()[line * grid.columns() + column]));
    };
    double squares = 0;
    double count = 0;
    for (std::size_t line = 0; line + 1 < grid.lines(); ++line) {
        for (std::size_t column = 0; column + 1 < grid.columns(); ++column, ++count) {
            const double difference = logarithm(column, line) - logarithm(column + 1, line)
                - logarithm(column, line + 1) + logarithm(column + 1, line + 1);
            squares += difference * difference;
        }
    }
    return count > 0 ? std::sqrt(squares / count) : 0;
}

double textureOf(const FrameStack &bright, const FrameStack &dark)
{
    const MeanImage light = bright.mean();
    const MeanImage offset = dark.mean();
    std::vector<float> signal(light.values);
    std::transform(signal.begin(), signal.end(), offset.values.begin(), signal.begin(), std::minus<float>());
    double highest = 0;
    for (std::size_t channel = 0; channel < light.mosaic.channels(); ++channel)
        highest = std::max(highest, textureOf(light.mosaic, channel, signal));
    return highest;
}

void checkCount(const FrameStack &stack, ReferenceFindings &findings)
{
    if (stack.count() < minReferenceImages)
        findings.push_back({true,
            {QT_TRANSLATE_NOOP("Sentence", "%1 images are too few for a correction. Take at least %2."),
                {SentenceNumber{double(stack.count())}, SentenceNumber{double(minReferenceImages)}}}});
}

void checkLevel(const FrameStack &bright, const FrameStack &dark, ReferenceFindings &findings)
{
    const double share = bright.brightestLevel() / bright.maxValue();
    const double light = share - dark.brightestLevel() / dark.maxValue();
    if (light < lowestUsableLevel)
        findings.push_back({true,
            {QT_TRANSLATE_NOOP("Sentence",
                 "The bright images are too dark: %1 % of the range above the dark images. Is the lens still "
                 "covered? Otherwise, use more light or a longer exposure time, for about 70 %."),
                {percentOf(std::max(0.0, light))}}});
    else if (share < lowestGoodLevel || share > highestGoodLevel)
        findings.push_back({false,
            {QT_TRANSLATE_NOOP("Sentence",
                 "The bright images have %1 % of the range. Between 50 and 80 %, the gains are most exact."),
                {percentOf(share)}}});
}

void checkChanges(const StackChanges &changes, ReferenceFindings &findings)
{
    if (changes.scene > sceneChangeLimit)
        findings.push_back({true,
            {QT_TRANSLATE_NOOP("Sentence",
                 "Parts of the picture have changed by %1 % between the images: something moves, or the "
                 "light flickers. Use an even surface that keeps still, and steady light."),
                {percentOf(changes.scene, 1)}}});
    else if (changes.flicker > flickerLimit)
        findings.push_back({false,
            {QT_TRANSLATE_NOOP(
                 "Sentence", "The brightness has changed by %1 % between the images. Use steady light."),
                {percentOf(changes.flicker, 1)}}});
}

} // namespace

ReferenceFindings checkDarkImages(const FrameStack &dark)
{
    ReferenceFindings findings;
    checkCount(dark, findings);
    const double share = dark.brightestLevel() / dark.maxValue();
    const PartLevels means = meanParts(dark);
    const auto [lowest, highest] = std::minmax_element(means.begin(), means.end());
    if (share > highestDarkLevel)
        findings.push_back({true,
            {QT_TRANSLATE_NOOP("Sentence",
                 "The dark images have %1 % of the range, so there seems to be light. Cover the lens "
                 "completely. If it is covered, reduce BlackLevel or Gain."),
                {percentOf(share)}}});
    else if (double(*highest - *lowest) > darkStructureLimit * dark.maxValue())
        findings.push_back({false,
            {QT_TRANSLATE_NOOP("Sentence",
                "The dark images are not equally dark everywhere. Make sure that no light reaches the lens, "
                "and take them again.")}});
    if (dark.blackShare() > blackLimit)
        findings.push_back({false,
            {QT_TRANSLATE_NOOP("Sentence",
                 "%1 % of the values in the dark are 0, so the offsets are cut off. Increase BlackLevel."),
                {percentOf(dark.blackShare())}}});
    else if (dark.temporalVariance() < quantizedVariance)
        findings.push_back({false,
            {QT_TRANSLATE_NOOP("Sentence",
                "The noise in the dark is smaller than one step of the pixel format, so the numbers of the "
                "dark images are not exact. A pixel format with more bits shows the differences.")}});
    return findings;
}

ReferenceFindings checkBrightImages(const FrameStack &bright, const FrameStack &dark)
{
    ReferenceFindings findings;
    checkCount(bright, findings);
    if (bright.clippedShare() > clippedLimit)
        findings.push_back({true,
            {QT_TRANSLATE_NOOP("Sentence",
                 "%1 % of the values in the bright images are clipped. Reduce the exposure time or the "
                 "light, to about 70 % of the range."),
                {percentOf(bright.clippedShare(), 1)}}});
    else
        checkLevel(bright, dark, findings);
    if (!fatalSentence(findings).isEmpty())
        return findings; // What follows compares levels that are not the true ones.
    checkChanges(changesOf(bright, dark.brightestLevel()), findings);
    if (fatalSentence(findings).isEmpty() && textureOf(bright, dark) > textureLimit)
        findings.push_back({false,
            {QT_TRANSLATE_NOOP("Sentence",
                "The bright images show structures that look like an object and not like shading; the "
                "correction would draw them into every picture. Use an even surface, out of focus.")}});
    return findings;
}

Sentence fatalSentence(const ReferenceFindings &findings)
{
    const auto found = std::find_if(
        findings.begin(), findings.end(), [](const ReferenceFinding &finding) { return finding.isFatal; });
    return found != findings.end() ? found->sentence : Sentence();
}
