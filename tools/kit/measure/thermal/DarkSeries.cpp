#include "tools/kit/measure/thermal/DarkSeries.h"

#include "tools/kit/measure/thermal/ExponentialFit.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr std::size_t firstCount = 10;

} // namespace

void DarkSeries::add(double seconds, double celsius, const DarkLevel &level)
{
    m_levels.add(seconds, level.mean);
    m_temperatures.add(seconds, celsius);
    if (m_noise)
        checkFollowing(seconds, celsius, level.mean);
    else
        learn(celsius, level);
}

void DarkSeries::learn(double celsius, const DarkLevel &level)
{
    m_firstLevels.push_back(level.mean);
    m_firstCelsius += celsius / firstCount;
    if (m_firstLevels.size() < firstCount)
        return;
    constexpr double squaresOfWeights = 6; // Sum of the squared weights of the second difference: 1, -2, 1.
    double squares = 0;
    for (std::size_t index = 2; index < firstCount; ++index) {
        const double difference
            = m_firstLevels[index] - 2 * m_firstLevels[index - 1] + m_firstLevels[index - 2];
        squares += difference * difference;
    }
    m_noise = std::max(std::sqrt(squares / squaresOfWeights / (firstCount - 2)), level.standardError);
    m_firstMean = std::accumulate(m_firstLevels.begin(), m_firstLevels.end(), 0.0) / firstCount;
}

void DarkSeries::checkFollowing(double seconds, double celsius, double level)
{
    constexpr int successive = 3;
    constexpr double significant = 3;
    constexpr double leastChange = 0.5; // Kelvin.
    if (m_followedAt)
        return;
    const double limit = significant * *m_noise * std::sqrt(1 + 1.0 / firstCount);
    const double difference = level - m_firstMean;
    const int direction = difference > 0 ? 1 : -1;
    if (std::abs(difference) <= limit || (celsius - m_firstCelsius) * direction < leastChange) {
        m_deviating = 0;
        return;
    }
    if (m_deviating * direction <= 0) {
        m_deviating = 0;
        m_deviatingSince = seconds;
    }
    m_deviating += direction;
    if (std::abs(m_deviating) == successive)
        m_followedAt = m_deviatingSince;
}

std::optional<DarkDoubling> DarkSeries::doubling() const
{
    constexpr std::size_t mostPoints = 400;
    constexpr double leastRange = 3;
    constexpr double shortest = 2;
    constexpr double longest = 30;
    constexpr double largestError = 0.25;
    const std::vector<HistoryPoint> levels = thinned(m_levels.points(), mostPoints);
    const std::vector<HistoryPoint> temperatures = thinned(m_temperatures.points(), mostPoints);
    std::vector<CurvePoint> points;
    for (std::size_t index = 0; index < levels.size(); ++index)
        points.push_back(
            {-temperatures[index].mean, levels[index].mean, static_cast<double>(levels[index].count)});
    const auto fit = fitExponential(points, shortest / std::log(2), longest / std::log(2));
    if (!fit || !fit->isScaleInside || fit->amplitude <= 0 || fit->scaleError > largestError)
        return std::nullopt;
    const auto [coldest, warmest] = std::minmax_element(temperatures.begin(), temperatures.end(),
        [](const HistoryPoint &left, const HistoryPoint &right) { return left.mean < right.mean; });
    if (warmest->mean - coldest->mean < leastRange)
        return std::nullopt;
    const double kelvin = fit->scale * std::log(2);
    return DarkDoubling{
        kelvin, kelvin * fit->scaleError, fit->offset, fit->amplitude, coldest->mean, warmest->mean};
}
