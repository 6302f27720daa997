#include "tools/kit/canvas/PleasantNumbers.h"

#include <cmath>

double pleasantAtMost(double limit)
{
    // A power of ten is not missed because its logarithm is a little too small.
    constexpr double roundingError = 1 + 1e-9;
    const double power = std::pow(10, std::floor(std::log10(limit * roundingError)));
    const double share = limit * roundingError / power;
    return power * (share >= 5 ? 5 : share >= 2 ? 2 : 1);
}

double pleasantAtLeast(double limit)
{
    return 1 / pleasantAtMost(1 / limit);
}
