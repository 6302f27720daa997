#pragma once

#include "tools/kit/measure/taps/TapControl.h"

#include <vector>

/// Finds the settings that make all taps equal. Assumes that an error of a tap, which is the logarithm of its
/// relative signal or its black level, changes in proportion to the setting, and corrects the factor by what
/// the last change has brought (the secant method with one common factor).
class BalancingModel
{
public:
    BalancingModel(const TapControl &control, const std::vector<TapValue> &present);

    /// Returns the values to write next.
    /// @param errors Of the taps, measured with the present values.
    std::vector<double> nextValues(const std::vector<double> &errors, const std::vector<TapValue> &present);

private:
    void learn(const std::vector<double> &errors, const std::vector<TapValue> &present);

    double m_factor; // Change of the error per unit of the setting.
    std::vector<double> m_lastErrors;
    std::vector<double> m_lastValues;
};
