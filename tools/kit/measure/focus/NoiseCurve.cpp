#include "tools/kit/measure/focus/NoiseCurve.h"

#include <algorithm>
#include <cstddef>

namespace {
using Block = NoiseCurve::Block;

constexpr std::size_t maxBlocks = 16384; // More do not make the curve better.
constexpr std::size_t maxSamples = 24;
constexpr std::size_t minBlocksPerSample = 32;

// A block's variance is distributed as chi-square with 16 degrees of freedom. Blocks above `clipLimit` times
// the variance of the noise are left out; the mean of the remaining ones is `keptMean` times that variance.
constexpr double clipLimit = 1.6; // 94 % of the blocks without edges remain.
constexpr double keptMean = 0.948;
constexpr double lowQuantile = 0.1;
constexpr double lowQuantileValue = 0.582; // Low quantile of the distribution, relative to its mean.
constexpr int clipRounds = 12;

/// Returns the blocks, or a part of them that is spread evenly over the picture.
std::vector<Block> thinned(std::vector<Block> blocks)
{
    const std::size_t step = (blocks.size() + maxBlocks - 1) / maxBlocks;
    if (step <= 1)
        return blocks;
    std::vector<Block> kept;
    for (std::size_t i = 0; i < blocks.size(); i += step)
        kept.push_back(blocks[i]);
    return kept;
}

/// Returns the variance of the noise from a sample that may contain blocks with edges, in the order of the
/// variances.
double clippedVariance(std::vector<double> variances)
{
    std::sort(variances.begin(), variances.end());
    const auto quantile = static_cast<std::size_t>(lowQuantile * static_cast<double>(variances.size()));
    double estimate = variances[quantile] / lowQuantileValue;
    for (int round = 0; round < clipRounds; ++round) {
        double sum = 0;
        std::size_t count = 0;
        while (count < variances.size() && variances[count] <= clipLimit * estimate)
            sum += variances[count++];
        if (count == 0)
            break;
        estimate = sum / static_cast<double>(count) / keptMean;
    }
    return estimate;
}

/// Returns one point per sample of blocks of similar brightness.
std::vector<Block> samplePoints(std::vector<Block> blocks)
{
    std::sort(blocks.begin(), blocks.end(), [](const Block &a, const Block &b) { return a.mean < b.mean; });
    const std::size_t samples = std::clamp<std::size_t>(blocks.size() / minBlocksPerSample, 1, maxSamples);
    std::vector<Block> points;
    for (std::size_t i = 0; i < samples; ++i) {
        const std::size_t first = blocks.size() * i / samples;
        const std::size_t end = blocks.size() * (i + 1) / samples;
        std::vector<double> variances;
        double sum = 0;
        for (std::size_t k = first; k < end; ++k) {
            variances.push_back(blocks[k].variance);
            sum += blocks[k].mean;
        }
        points.push_back({sum / static_cast<double>(end - first), clippedVariance(std::move(variances))});
    }
    return points;
}

/// Returns the points of the lower convex envelope.
std::vector<Block> lowerEnvelope(const std::vector<Block> &points)
{
    std::vector<Block> envelope;
    for (const Block &point : points) {
        const auto isAboveLine = [&] {
            const Block &a = envelope[envelope.size() - 2];
            const Block &b = envelope.back();
            return (b.variance - a.variance) * (point.mean - a.mean)
                >= (point.variance - a.variance) * (b.mean - a.mean);
        };
        while (envelope.size() >= 2 && isAboveLine())
            envelope.pop_back();
        envelope.push_back(point);
    }
    return envelope;
}
} // namespace

NoiseCurve::NoiseCurve(std::vector<Block> blocks)
{
    if (blocks.empty())
        return;
    std::vector<Block> points = samplePoints(thinned(std::move(blocks)));
    // The noise does not fall with the brightness: a darker sample with more of it has edges.
    for (std::size_t i = points.size() - 1; i > 0; --i)
        points[i - 1].variance = std::min(points[i - 1].variance, points[i].variance);
    m_points = lowerEnvelope(points);
}

double NoiseCurve::variance(double value) const
{
    if (m_points.empty())
        return 0;
    if (m_points.size() == 1 || value <= m_points.front().mean)
        return m_points.front().variance;
    const auto next = std::find_if(m_points.begin() + 1, m_points.end() - 1,
        [value](const Block &point) { return value <= point.mean; }); // The last line goes on.
    const Block &a = *(next - 1);
    const Block &b = *next;
    if (b.mean <= a.mean)
        return b.variance;
    return a.variance + (b.variance - a.variance) * (value - a.mean) / (b.mean - a.mean);
}
