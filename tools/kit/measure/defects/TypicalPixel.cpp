#include "tools/kit/measure/defects/TypicalPixel.h"

#include "tools/kit/measure/defects/RobustSpread.h"

#include <algorithm>
#include <cmath>

TypicalPixel typicalPixel(const PixelStatistics &statistics, std::uint32_t firstX, std::uint32_t firstY)
{
    constexpr double wantedPixels = 20000;
    const StatisticsLayout &layout = statistics.layout();
    const auto stride = static_cast<std::uint32_t>(
        std::max(1.0, std::sqrt(static_cast<double>(statistics.pixels()) / wantedPixels)));
    const std::uint32_t stepX = layout.isLineScan() ? layout.colorStep : stride * layout.colorStep;
    std::vector<float> means;
    std::vector<float> squares;
    for (std::uint32_t y = firstY; y < layout.height; y += stride * layout.colorStep) {
        for (std::uint32_t x = firstX; x < layout.width; x += stepX) {
            means.push_back(statistics.means(y)[x]);
            squares.push_back(statistics.squares(y)[x]);
        }
    }
    return {medianOf(means), typicalVariance(statistics, squares)};
}

double typicalVariance(const PixelStatistics &statistics, std::vector<float> &squares)
{
    const double medianPerMean = std::pow(1 - chiSquaredParameter(statistics), 3);
    return medianOf(squares) * statistics.varianceScale() / medianPerMean;
}

double chiSquaredParameter(const PixelStatistics &statistics)
{
    constexpr double minDegrees = 1; // A single picture has no variance.
    constexpr double maxDegrees = 100;
    const double degrees = static_cast<double>(statistics.samples()) - 1;
    return 2 / (9 * std::clamp(degrees, minDegrees, maxDegrees));
}
