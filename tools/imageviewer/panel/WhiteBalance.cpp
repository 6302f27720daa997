#include "tools/imageviewer/panel/WhiteBalance.h"

#include <algorithm>

std::array<double, 3> balancedRatios(const BalanceRatios &present, const std::array<double, 3> &gains)
{
    // A colour that the camera cannot change keeps its factor 1, so its gain has to go into the others.
    double common = 1;
    for (std::size_t color = 0; color < gains.size(); ++color) {
        if (!present[color])
            common = 1 / gains[color];
    }
    std::array<double, 3> ratios{};
    for (std::size_t color = 0; color < gains.size(); ++color)
        ratios[color] = present[color] ? present[color]->value * gains[color] * common : 1;

    const bool isFree = std::all_of(present.begin(), present.end(), [](const auto &ratio) { return ratio; });
    double raise = 1;
    double lower = 1;
    for (std::size_t color = 0; isFree && color < gains.size(); ++color) {
        raise = std::max(raise, present[color]->minimum / ratios[color]);
        lower = std::min(lower, present[color]->maximum / ratios[color]);
    }
    for (std::size_t color = 0; color < gains.size(); ++color) {
        if (present[color]) // Only one of the two factors differs from 1, unless the limits are too narrow.
            ratios[color]
                = std::clamp(ratios[color] * raise * lower, present[color]->minimum, present[color]->maximum);
    }
    return ratios;
}
