#pragma once

#include <cstdint>
#include <limits>

// Which values a number can have, and how far one step goes.

/// The values that an integer can have: minimum, minimum + increment, and so on.
struct IntegerRange
{
    std::int64_t minimum = std::numeric_limits<std::int64_t>::min();
    std::int64_t maximum = std::numeric_limits<std::int64_t>::max();
    std::int64_t increment = 1; ///< At least 1.
};

/// The values that a float can have.
struct FloatRange
{
    double minimum = std::numeric_limits<double>::lowest();
    double maximum = std::numeric_limits<double>::max();
    double increment = 0; ///< 0 if every value is allowed.
};

/// Returns the nearest value that the range allows.
std::int64_t nearestValue(std::int64_t value, const IntegerRange &range);
double nearestValue(double value, const FloatRange &range);

/// Returns the value that is some steps away, inside of the range.
std::int64_t steppedValue(std::int64_t value, int steps, const IntegerRange &range);

/// Returns the value that is some steps away, inside of the range. On a logarithmic scale, one step changes
/// the second digit of the value; otherwise one step is about a hundredth of the range. A step is never
/// smaller than the increment.
double steppedValue(double value, int steps, const FloatRange &range, bool isLogarithmic);
