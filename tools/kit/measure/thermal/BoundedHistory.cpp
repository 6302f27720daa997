#include "tools/kit/measure/thermal/BoundedHistory.h"

#include <algorithm>
#include <limits>

HistoryPoint merged(const HistoryPoint &first, const HistoryPoint &second)
{
    HistoryPoint both = first;
    both.last = second.last;
    both.count = first.count + second.count;
    both.mean
        += (second.mean - first.mean) * static_cast<double>(second.count) / static_cast<double>(both.count);
    both.minimum = std::min(first.minimum, second.minimum);
    both.maximum = std::max(first.maximum, second.maximum);
    return both;
}

std::vector<HistoryPoint> thinned(const std::vector<HistoryPoint> &points, std::size_t maxCount)
{
    const std::size_t step = (points.size() + maxCount - 1) / maxCount;
    std::vector<HistoryPoint> result;
    for (std::size_t index = 0; index < points.size(); ++index) {
        if (index % step == 0)
            result.push_back(points[index]);
        else
            result.back() = merged(result.back(), points[index]);
    }
    return result;
}

void BoundedHistory::add(double seconds, double value)
{
    const bool isAfterGap = m_isGap && m_count > 0;
    push(0, {seconds, seconds, value, value, value, 1, isAfterGap});
    m_isGap = false;
    ++m_count;
}

void BoundedHistory::clear()
{
    *this = {};
}

std::size_t BoundedHistory::size() const
{
    std::size_t size = 0;
    for (const std::deque<HistoryPoint> &level : m_levels)
        size += level.size();
    return size;
}

void BoundedHistory::push(std::size_t level, const HistoryPoint &point)
{
    if (level == m_levels.size())
        m_levels.emplace_back();
    m_levels[level].push_back(point);
    if (m_levels[level].size() <= levelCapacity)
        return;
    std::deque<HistoryPoint> &points = m_levels[level];
    const HistoryPoint oldest = points[0];
    const HistoryPoint next = points[1];
    const bool isLastLevel = level + 1 == maxLevels;
    points.pop_front();
    if (isLastLevel) {
        points.front() = merged(oldest, next);
        return;
    }
    if (next.isAfterGap) { // A merged point would hide the gap.
        push(level + 1, oldest);
        return;
    }
    points.pop_front();
    push(level + 1, merged(oldest, next));
}

std::vector<HistoryPoint> BoundedHistory::since(double seconds) const
{
    std::vector<HistoryPoint> result;
    for (auto level = m_levels.rbegin(); level != m_levels.rend(); ++level) {
        const auto begin = std::lower_bound(level->begin(), level->end(), seconds,
            [](const HistoryPoint &point, double time) { return point.last < time; });
        result.insert(result.end(), begin, level->end());
    }
    return result;
}

std::vector<HistoryPoint> BoundedHistory::points() const
{
    return since(std::numeric_limits<double>::lowest());
}
