#include "tools/kit/editors/NumberSteps.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double stepsInRange = 100;
constexpr double largestUsefulRange = 1e15; ///< Beyond, a step follows the value instead of the range.

/// Returns the largest number of the form 1, 2 or 5 times a power of ten that is not above the value.
double niceNumber(double value)
{
    const double decade = std::pow(10, std::floor(std::log10(value)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * decade <= value)
            return factor * decade;
    }
    return decade;
}

/// Returns one unit of the second digit of the value.
double secondDigit(double value)
{
    return std::pow(10, std::floor(std::log10(std::abs(value))) - 1);
}

double stepSize(double value, const FloatRange &range, bool isLogarithmic)
{
    const double width = range.maximum - range.minimum;
    const bool hasUsefulRange = width > 0 && width < largestUsefulRange;
    if (!isLogarithmic && hasUsefulRange)
        return niceNumber(width / stepsInRange);
    if (value != 0)
        return secondDigit(value);
    return hasUsefulRange ? niceNumber(width / (stepsInRange * stepsInRange)) : 1;
}

} // namespace

std::int64_t nearestValue(std::int64_t value, const IntegerRange &range)
{
    const std::int64_t inside = std::clamp(value, range.minimum, std::max(range.minimum, range.maximum));
    // The differences of two integers of 64 bits only fit into unsigned ones.
    const auto start = static_cast<std::uint64_t>(range.minimum);
    const auto increment = static_cast<std::uint64_t>(range.increment);
    const std::uint64_t distance = static_cast<std::uint64_t>(inside) - start;
    const std::uint64_t highest = (static_cast<std::uint64_t>(range.maximum) - start) / increment;
    std::uint64_t count = distance / increment;
    if (distance % increment >= increment - distance % increment && count < highest)
        ++count;
    return static_cast<std::int64_t>(start + count * increment);
}

double nearestValue(double value, const FloatRange &range)
{
    const double inside = std::clamp(value, range.minimum, std::max(range.minimum, range.maximum));
    if (range.increment <= 0)
        return inside;
    const double highest = std::floor((range.maximum - range.minimum) / range.increment + 1e-9);
    const double count = std::min(std::round((inside - range.minimum) / range.increment), highest);
    return std::min(range.minimum + count * range.increment, range.maximum);
}

std::int64_t steppedValue(std::int64_t value, int steps, const IntegerRange &range)
{
    std::int64_t distance = 0;
    std::int64_t sum = 0;
    if (__builtin_mul_overflow(range.increment, static_cast<std::int64_t>(steps), &distance)
        || __builtin_add_overflow(value, distance, &sum))
        return nearestValue(steps > 0 ? range.maximum : range.minimum, range);
    return nearestValue(sum, range);
}

double steppedValue(double value, int steps, const FloatRange &range, bool isLogarithmic)
{
    double step = stepSize(value, range, isLogarithmic);
    // A step down from 1000 is a step of the decade below, so that a step up leads back.
    if (isLogarithmic && steps < 0 && value > 0 && value - step < secondDigit(value) * 10)
        step = stepSize(value - step / 2, range, isLogarithmic);
    step = std::max(step, range.increment);
    // The sum lies on whole steps, so 8003 goes to 8100 and then to 8200.
    const double target
        = (steps > 0 ? std::floor(value / step + 1e-9) : std::ceil(value / step - 1e-9)) + steps;
    if (range.increment > 0)
        return nearestValue(value + steps * step, range);
    // Dividing by a whole number gives the nearest double; multiplying by 0.1 does not.
    return nearestValue(step < 1 ? target / std::round(1 / step) : target * step, range);
}
