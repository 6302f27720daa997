#include "tools/kit/editors/SliderScale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double logarithmicRatio = 1000; ///< Three decades.
constexpr double largestRange = 1e18; ///< Beyond, a limit only states what the number format can hold.

/// A logarithmic scale that contains 0 shows this many decades, and 0 at its end.
constexpr double zeroScaleDecades = 6;

/// Returns the value with no more digits than needed to tell it from values that are `distance` away.
double roundTo(double value, double distance)
{
    const double digit = std::pow(10, std::floor(std::log10(distance)));
    // Dividing by a whole number gives the nearest double; multiplying by 0.1 does not.
    return digit < 1 ? std::round(value * std::round(1 / digit)) / std::round(1 / digit)
                     : std::round(value / digit) * digit;
}

} // namespace

std::optional<SliderScale> SliderScale::create(
    double minimum, double maximum, CvxCPP::NodeRepresentation representation)
{
    if (!(minimum < maximum) || maximum - minimum > largestRange)
        return std::nullopt;
    const bool isWanted = representation == CvxCPP::NodeRepresentation::Logarithmic && minimum >= 0;
    return SliderScale(minimum, maximum, isWanted || (minimum > 0 && maximum / minimum >= logarithmicRatio));
}

SliderScale::SliderScale(double minimum, double maximum, bool isLogarithmic)
    : m_minimum(minimum),
      m_maximum(maximum),
      m_start(minimum > 0 ? minimum : maximum * std::pow(10, -zeroScaleDecades)),
      m_isLogarithmic(isLogarithmic)
{ }

int SliderScale::position(double value) const
{
    if (!(value > m_minimum))
        return 0;
    const double share = m_isLogarithmic
        ? std::log(std::max(value, m_start) / m_start) / std::log(m_maximum / m_start)
        : (value - m_minimum) / (m_maximum - m_minimum);
    return static_cast<int>(std::lround(std::min(share, 1.0) * positions));
}

double SliderScale::value(int position) const
{
    if (position <= 0)
        return m_minimum;
    if (position >= positions)
        return m_maximum;
    const double share = static_cast<double>(position) / positions;
    if (!m_isLogarithmic) {
        const double range = m_maximum - m_minimum;
        return std::clamp(roundTo(m_minimum + share * range, range / positions), m_minimum, m_maximum);
    }
    const double value = m_start * std::pow(m_maximum / m_start, share);
    const double distance = value * (std::pow(m_maximum / m_start, 1.0 / positions) - 1);
    return std::clamp(roundTo(value, distance), m_minimum, m_maximum);
}
