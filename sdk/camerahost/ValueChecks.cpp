#include "sdk/camerahost/ValueChecks.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr long double floatPrecision = 1e-6L; // Relative; a float of 32 bits has 6e-8.

std::string numberText(long double number, bool isInteger)
{
    const bool fits = number >= -0x1p63L && number < 0x1p63L;
    return isInteger && fits ? std::to_string(static_cast<std::int64_t>(number))
                             : ::numberText(static_cast<double>(number));
}

std::string neighboursText(long double lower, long double step, const Limits &limits, bool isInteger)
{
    const std::string steps = "the value has steps of " + numberText(*limits.increment, isInteger);
    const long double upper = lower + step;
    if (limits.maximum && upper > *limits.maximum)
        return steps + ", and the largest value is " + numberText(lower, isInteger);
    return steps + ", so the nearest values are " + numberText(lower, isInteger) + " and "
        + numberText(upper, isInteger);
}

} // namespace

std::optional<std::string> checkInteger(std::int64_t value, const Limits &limits)
{
    const long double number = value;
    if (limits.minimum && number < *limits.minimum)
        return "the smallest value is " + numberText(std::ceil(*limits.minimum), true);
    if (limits.maximum && number > *limits.maximum)
        return "the largest value is " + numberText(std::floor(*limits.maximum), true);
    if (!limits.increment || *limits.increment < 1)
        return std::nullopt;
    const long double origin = std::ceil(limits.minimum.value_or(0)); // A formula may compute the limits.
    const long double step = std::round(*limits.increment);
    const long double lower = origin + std::floor((number - origin) / step) * step;
    if (lower < number || lower > number)
        return neighboursText(lower, step, limits, true);
    return std::nullopt;
}

std::optional<std::string> checkFloat(double &value, const Limits &limits)
{
    if (!std::isfinite(value))
        return "the value has to be a number";
    const auto isNear = [](long double left, long double right) {
        return std::abs(left - right) <= floatPrecision * std::max(std::abs(left), std::abs(right));
    };
    if (limits.minimum && value < *limits.minimum) {
        if (!isNear(value, *limits.minimum))
            return "the smallest value is " + numberText(*limits.minimum, false);
        value = static_cast<double>(*limits.minimum);
    }
    if (limits.maximum && value > *limits.maximum) {
        if (!isNear(value, *limits.maximum))
            return "the largest value is " + numberText(*limits.maximum, false);
        value = static_cast<double>(*limits.maximum);
    }
    if (!limits.increment)
        return std::nullopt;
    const long double origin = limits.minimum.value_or(0);
    const long double steps = (value - origin) / *limits.increment;
    const long double nearest = origin + std::round(steps) * *limits.increment;
    if (!isNear(value, nearest) && std::abs(steps - std::round(steps)) > floatPrecision)
        return neighboursText(
            origin + std::floor(steps) * *limits.increment, *limits.increment, limits, false);
    return std::nullopt;
}

std::string numberText(double number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}
