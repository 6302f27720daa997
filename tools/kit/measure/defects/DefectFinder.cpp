#include "tools/kit/measure/defects/DefectFinder.h"

#include "tools/kit/measure/defects/NeighbourMedian.h"
#include "tools/kit/measure/defects/RobustSpread.h"
#include "tools/kit/measure/defects/TypicalPixel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <tuple>

namespace {

constexpr std::uint32_t partPixels = 64; // Width and height in pixels of one colour.
constexpr std::uint32_t linePartPixels = 1024; // Width in pixels of one colour if the sensor has one line.
constexpr std::uint32_t linesPerQuestion = 8; // Whether the examination goes on.

// Rounding to whole numbers has the variance 1/12. A value between two numbers alternates between them with
// a variance of at most 1/4.
constexpr double roundingVariance = 1.0 / 12;
constexpr double alternationVariance = 0.25;

// Additional signal that a hot pixel gains or loses during a set of images, for example by 0.6 K.
constexpr double temperatureShare = 0.05;

/// Returns the variance of the light from image to image, relative to the signal.
double lightVariance(const PixelStatistics &dark, const PixelStatistics &bright)
{
    const auto mean = [](const std::vector<float> &numbers) {
        double sum = 0;
        for (const float number : numbers)
            sum += number;
        return sum / static_cast<double>(numbers.size());
    };
    std::vector<float> levels;
    for (const std::vector<float> &blocks : bright.blockMeans())
        levels.push_back(static_cast<float>(mean(blocks)));
    if (levels.size() < 2)
        return 0;
    const double level = mean(levels);
    double squares = 0;
    for (const float value : levels)
        squares += (value - level) * (value - level);
    const double signal = level - mean(dark.blockMeans().front());
    return signal > 0 ? squares / static_cast<double>(levels.size() - 1) / (signal * signal) : 0;
}

/// Returns K of the photon transfer: variance of the shot noise for a signal of 1.
double systemGain(const PixelStatistics &dark, const PixelStatistics &bright)
{
    const double flicker = lightVariance(dark, bright);
    const std::uint32_t step = dark.layout().colorStep;
    const std::uint32_t rows = dark.layout().isLineScan() ? 1 : step;
    std::vector<float> gains;
    for (std::uint32_t plane = 0; plane < rows * step; ++plane) {
        const TypicalPixel inDark = typicalPixel(dark, plane % step, plane / step);
        const TypicalPixel inLight = typicalPixel(bright, plane % step, plane / step);
        const double signal = inLight.mean - inDark.mean;
        if (signal > 0)
            gains.push_back(static_cast<float>(
                (inLight.variance - inDark.variance - flicker * signal * signal) / signal));
    }
    return std::max(0.0, medianOf(gains));
}

/// Rectangle of the picture whose pixels are compared with each other.
struct Part
{
    std::uint32_t firstX;
    std::uint32_t endX;
    std::uint32_t firstY;
    std::uint32_t endY;
};

/// One set of images during the examination.
struct Set
{
    const PixelStatistics &statistics;
    NeighbourMedian neighbours;
    std::vector<float> differences; // Differences from the neighbours, in the lines of the present band.

    // Values of the present part:
    std::vector<float> numbers; // Working memory.
    RobustSpread spread; // Spread of the differences.
    double deviation = 1; // The unit of the result.
    double variance = 0; // Expected of a pixel that is as bright as its neighbours.

    // Values of all parts:
    std::vector<float> levels;
    std::vector<float> deviations;
    std::vector<float> noises;
};

class Examination
{
public:
    Examination(const PixelStatistics &dark, const PixelStatistics &bright)
        : m_layout(dark.layout()), m_sets{newSet(dark), newSet(bright)}, m_gain(systemGain(dark, bright))
    { }

    /// Returns false if the examination was cancelled.
    bool examineBand(std::uint32_t firstY, std::uint32_t endY, const std::function<bool()> &goesOn)
    {
        for (Set &set : m_sets)
            if (!computeDifferences(set, firstY, endY, goesOn))
                return false;
        const std::uint32_t step = m_layout.colorStep;
        const std::uint32_t size = (m_layout.isLineScan() ? linePartPixels : partPixels) * step;
        const std::uint32_t count = partCount(m_layout.width, size);
        const std::size_t known = m_findings.candidates.size();
        for (std::uint32_t i = 0; i < count; ++i) {
            if (!goesOn())
                return false;
            const Part part{partStart(i, count, m_layout.width, step),
                partStart(i + 1, count, m_layout.width, step), firstY, endY};
            for (std::uint32_t row = 0; row < std::min(step, endY - firstY); ++row)
                for (std::uint32_t column = 0; column < step; ++column)
                    examinePart({part.firstX + column, part.endX, part.firstY + row, part.endY}, firstY);
        }
        std::sort(m_findings.candidates.begin() + static_cast<std::ptrdiff_t>(known),
            m_findings.candidates.end(), [](const DefectCandidate &a, const DefectCandidate &b) {
                return std::tie(a.y, a.x) < std::tie(b.y, b.x);
            });
        return true;
    }

    DefectFindings findings()
    {
        m_findings.width = m_layout.offsetX + m_layout.width;
        m_findings.height = m_layout.isLineScan() ? 1 : m_layout.offsetY + m_layout.height;
        m_findings.examinedPixels = m_sets[0].statistics.pixels();
        m_findings.darkLevel = medianOf(m_sets[0].levels);
        m_findings.darkNoise = medianOf(m_sets[0].noises);
        m_findings.darkSpread = medianOf(m_sets[0].deviations);
        m_findings.brightLevel = medianOf(m_sets[1].levels);
        m_findings.brightNoise = medianOf(m_sets[1].noises);
        m_findings.brightSpread = medianOf(m_sets[1].deviations);
        return std::move(m_findings);
    }

    /// Divides a size into parts of about the wanted size.
    static std::uint32_t partCount(std::uint32_t size, std::uint32_t wanted)
    {
        return std::max(1U, (size + wanted / 2) / wanted);
    }
    static std::uint32_t partStart(
        std::uint32_t part, std::uint32_t count, std::uint32_t size, std::uint32_t step)
    {
        if (part == count)
            return size;
        return static_cast<std::uint32_t>(static_cast<std::uint64_t>(part) * size / count) / step * step;
    }

private:
    static Set newSet(const PixelStatistics &statistics)
    {
        const StatisticsLayout &layout = statistics.layout();
        return {statistics, NeighbourMedian(layout.width, layout.height, layout.colorStep), {}, {}, {}, 1, 0,
            {}, {}, {}};
    }

    bool computeDifferences(
        Set &set, std::uint32_t firstY, std::uint32_t endY, const std::function<bool()> &goesOn) const
    {
        set.differences.resize(static_cast<std::size_t>(endY - firstY) * m_layout.width);
        for (std::uint32_t y = firstY; y < endY; ++y) {
            if ((y - firstY) % linesPerQuestion == 0 && !goesOn())
                return false;
            float *const line
                = set.differences.data() + static_cast<std::size_t>(y - firstY) * m_layout.width;
            set.neighbours.computeLine(set.statistics.means(0), y, line);
            const float *const means = set.statistics.means(y);
            for (std::uint32_t x = 0; x < m_layout.width; ++x)
                line[x] = means[x] - line[x];
        }
        return true;
    }

    template <typename Value>
    std::vector<float> &collect(Set &set, const Part &part, Value value) const
    {
        set.numbers.clear();
        for (std::uint32_t y = part.firstY; y < part.endY; y += m_layout.colorStep)
            for (std::uint32_t x = part.firstX; x < part.endX; x += m_layout.colorStep)
                set.numbers.push_back(value(x, y));
        return set.numbers;
    }

    void measurePart(Set &set, const Part &part, std::uint32_t bandY) const
    {
        const PixelStatistics &statistics = set.statistics;
        set.spread = robustSpread(collect(
            set, part, [&](std::uint32_t x, std::uint32_t y) { return difference(set, x, y - bandY); }));
        set.deviation = std::max(set.spread.deviation, std::sqrt(roundingVariance));
        set.variance = typicalVariance(statistics,
            collect(set, part, [&](std::uint32_t x, std::uint32_t y) { return statistics.squares(y)[x]; }));
        set.levels.push_back(static_cast<float>(medianOf(
            collect(set, part, [&](std::uint32_t x, std::uint32_t y) { return statistics.means(y)[x]; }))));
        set.deviations.push_back(static_cast<float>(set.spread.deviation));
        set.noises.push_back(static_cast<float>(std::sqrt(set.variance)));
    }

    float difference(const Set &set, std::uint32_t x, std::uint32_t bandLine) const
    {
        return set.differences[static_cast<std::size_t>(bandLine) * m_layout.width + x];
    }

    void examinePart(const Part &part, std::uint32_t bandY)
    {
        for (Set &set : m_sets)
            measurePart(set, part, bandY);
        for (std::uint32_t y = part.firstY; y < part.endY; y += m_layout.colorStep)
            for (std::uint32_t x = part.firstX; x < part.endX; x += m_layout.colorStep)
                examinePixel(x, y, y - bandY);
    }

    void examinePixel(std::uint32_t x, std::uint32_t y, std::uint32_t bandLine)
    {
        DefectCandidate candidate;
        std::array<double, 2> differences{};
        for (std::size_t i = 0; i < 2; ++i) {
            const Set &set = m_sets[i];
            differences[i] = difference(set, x, bandLine) - set.spread.median;
            candidate.blinking = std::max(candidate.blinking, blinking(set, x, y, differences[i]));
        }
        candidate.dark = static_cast<float>(differences[0] / m_sets[0].deviation);
        candidate.bright = static_cast<float>(differences[1] / m_sets[1].deviation);
        if (largestDeviation(candidate) < smallestThreshold)
            return;
        const PixelStatistics &dark = m_sets[0].statistics;
        const PixelStatistics &bright = m_sets[1].statistics;
        const double usualReaction = bright.means(y)[x] - differences[1] - m_sets[0].levels.back();
        candidate.reaction = static_cast<float>(1 + differences[1] / usualReaction);
        candidate.isConstant
            = dark.squares(y)[x] == 0 && bright.squares(y)[x] == 0 && dark.means(y)[x] == bright.means(y)[x];
        candidate.x = m_layout.offsetX + x;
        candidate.y = m_layout.isLineScan() ? 0 : m_layout.offsetY + y;
        m_findings.candidates.push_back(candidate);
    }

    float blinking(const Set &set, std::uint32_t x, std::uint32_t y, double difference) const
    {
        if (!set.statistics.showsNoise())
            return 0;
        const double additional = std::max(0.0, difference);
        const double expected = std::max(alternationVariance,
            set.variance + m_gain * additional + std::pow(temperatureShare * additional, 2));
        const double quotient = set.statistics.squares(y)[x] * set.statistics.varianceScale() / expected;
        const double parameter = chiSquaredParameter(set.statistics);
        return static_cast<float>((std::cbrt(quotient) - (1 - parameter)) / std::sqrt(parameter));
    }

    const StatisticsLayout m_layout;
    std::array<Set, 2> m_sets; // Dark, bright.
    const double m_gain;
    DefectFindings m_findings;
};

} // namespace

std::optional<DefectFindings> findDefects(
    const PixelStatistics &dark, const PixelStatistics &bright, const MeasureProgress &progress)
{
    const StatisticsLayout &layout = dark.layout();
    Examination examination(dark, bright);
    const std::uint32_t bands = Examination::partCount(layout.height, partPixels * layout.colorStep);
    for (std::uint32_t band = 0; band < bands; ++band) {
        const bool isComplete
            = examination.examineBand(Examination::partStart(band, bands, layout.height, layout.colorStep),
                Examination::partStart(band + 1, bands, layout.height, layout.colorStep),
                [&] { return progress(band, bands); });
        if (!isComplete)
            return {};
    }
    return examination.findings();
}
