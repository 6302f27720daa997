#include "tools/kit/measure/taps/BalancingModel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double logPerDecibel = 2.302585092994046 / 20;

/// The largest part of the range by which a setting may change before its effect is known.
constexpr double firstShare = 0.02;

double firstFactor(const TapControl &control, const TapValue &value)
{
    if (control.setting == TapSetting::BlackLevel)
        return 1; // Pixel values, or something near.
    if (control.isDecibel)
        return logPerDecibel;
    if (value.value > 0)
        return 1 / value.value; // The gain is linear.
    return 1 / std::max(value.maximum - value.minimum, 1e-6);
}

double meanOf(const std::vector<double> &values)
{
    double sum = 0;
    for (const double value : values)
        sum += value;
    return sum / static_cast<double>(values.size());
}

} // namespace

BalancingModel::BalancingModel(const TapControl &control, const std::vector<TapValue> &present)
    : m_factor(firstFactor(control, present.front()))
{ }

/// Fits the factor to the differences between the taps: what all have in common is not in the errors.
void BalancingModel::learn(const std::vector<double> &errors, const std::vector<TapValue> &present)
{
    std::vector<double> valueChanges;
    std::vector<double> errorChanges;
    for (std::size_t i = 0; i < errors.size(); ++i) {
        valueChanges.push_back(present[i].value - m_lastValues[i]);
        errorChanges.push_back(errors[i] - m_lastErrors[i]);
    }
    const double meanValue = meanOf(valueChanges);
    const double meanError = meanOf(errorChanges);
    double products = 0;
    double squares = 0;
    for (std::size_t i = 0; i < errors.size(); ++i) {
        products += (valueChanges[i] - meanValue) * (errorChanges[i] - meanError);
        squares += (valueChanges[i] - meanValue) * (valueChanges[i] - meanValue);
    }
    constexpr double maxChange = 64; // One measurement may be wrong.
    if (squares > 0 && products > 0)
        m_factor = std::clamp(products / squares, m_factor / maxChange, m_factor * maxChange);
}

std::vector<double> BalancingModel::nextValues(
    const std::vector<double> &errors, const std::vector<TapValue> &present)
{
    const bool isFirst = m_lastErrors.empty();
    if (!isFirst)
        learn(errors, present);
    m_lastErrors = errors;
    m_lastValues.clear();
    std::vector<double> values;
    double raise = 0; // For all taps, so that none is below its minimum.
    for (std::size_t i = 0; i < errors.size(); ++i) {
        double change = -errors[i] / m_factor;
        if (isFirst) {
            const double limit
                = std::max(firstShare * (present[i].maximum - present[i].minimum), present[i].increment);
            change = std::clamp(change, -limit, limit);
        }
        m_lastValues.push_back(present[i].value);
        values.push_back(present[i].value + change);
        raise = std::max(raise, present[i].minimum - values.back());
    }
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = allowedValue(present[i], values[i] + raise);
    return values;
}
