#include "sdk/cvxcpp/StartOrder.h"

#include <algorithm>

std::vector<std::size_t> chooseStarts(const std::vector<TimePoint> &startTimes, TimePoint now)
{
    std::vector<std::size_t> due;
    for (std::size_t i = 0; i < startTimes.size(); ++i) {
        if (startTimes[i] <= now)
            due.push_back(i);
    }
    std::stable_sort(
        due.begin(), due.end(), [&](std::size_t a, std::size_t b) { return startTimes[a] < startTimes[b]; });
    due.resize(std::min(due.size(), maxStarts));
    return due;
}
