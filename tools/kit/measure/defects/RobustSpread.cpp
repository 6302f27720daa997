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
    constexpr double sigmaPerMad = 1.4826; // For normal distributions, like the next constant.
    constexpr double withinThreeSigma = 0.98658; // Standard deviation without the tails beyond 3.
    RobustSpread spread;
    spread.median = medianOf(numbers);
    for (float &number : numbers)
        number = std::abs(number - static_cast<float>(spread.median));
    const double limit = 3 * sigmaPerMad * medianOf(numbers);
    double squares = 0;
    std::size_t count = 0;
    for (const float number : numbers) {
        if (number > limit)
            continue;
        squares += static_cast<double>(number) * number;
        ++count;
    }
    spread.deviation = count > 0 ? std::sqrt(squares / static_cast<double>(count)) / withinThreeSigma : 0;
    return spread;
}
