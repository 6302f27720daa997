#include "tools/kit/measure/defects/RobustSpread.h"

#include <algorithm>
#include <cmath>

double medianOf(std::vector<float> &numbers)
{
    if (numbers.empty())
        return 0;
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

RobustSpread robustSpread(std::vector<float> &numbers)
{
    constexpr double sigmaPerMad = 1.4826; // For normal distributions.
    RobustSpread spread;
    spread.median = medianOf(numbers);
    for (float &number : numbers)
        number = std::abs(number - static_cast<float>(spread.median));
    spread.deviation = sigmaPerMad * medianOf(numbers);
    return spread;
}
