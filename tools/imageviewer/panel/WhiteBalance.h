#pragma once

#include <array>
#include <optional>

/// The factor of one colour in the camera; no value if the camera cannot change that colour.
struct BalanceRatio
{
    double value = 1;
    double minimum = 0;
    double maximum = 1;
};

using BalanceRatios = std::array<std::optional<BalanceRatio>, 3>; ///< Red, green and blue.

/// Returns the factors after which the camera's picture looks as it did with these gains of the display. The
/// proportion of the colours is kept as far as the limits allow, if necessary with a brighter or darker
/// picture.
std::array<double, 3> balancedRatios(const BalanceRatios &present, const std::array<double, 3> &gains);
