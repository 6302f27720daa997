#include "sdk/simulator/SceneNoise.h"

#include <algorithm>
#include <cmath>
#include <numeric>

SceneNoise::SceneNoise(std::uint64_t seed, double mean, double deviation, int maxLength)
{
    constexpr double twoPi = 6.283185307179586;
    std::vector<double> normal(count);
    for (std::size_t i = 0; i < count; i += 2) {
        const double radius = std::sqrt(-2 * std::log(1 - uniformRandom(scrambled(seed) + i)));
        const double angle = twoPi * uniformRandom(scrambled(seed) + i + 1);
        normal[i] = radius * std::cos(angle);
        normal[i + 1] = radius * std::sin(angle);
    }

    // Measurements compare with the exact mean and standard deviation.
    const double sampleMean = std::accumulate(normal.begin(), normal.end(), 0.0) / count;
    double squares = 0;
    for (double &number : normal) {
        number -= sampleMean;
        squares += number * number;
    }
    const double scale = deviation / std::sqrt(squares / count);

    m_numbers.resize(count + static_cast<std::size_t>(maxLength));
    for (std::size_t i = 0; i < m_numbers.size(); ++i)
        m_numbers[i] = static_cast<float>(mean + scale * normal[i % count]);
}
