#include "tools/kit/measure/thermal/BoundedHistory.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

double swing(double seconds)
{
    return 40 + 10 * std::sin(seconds / 5000);
}

TEST(BoundedHistoryTest, keepsADayInBoundedMemory)
{
    constexpr int day = 24 * 3600;
    constexpr int spike = 30000;
    BoundedHistory history;
    std::size_t greatest = 0;
    for (int second = 0; second < 30 * day; ++second) {
        history.add(second, second == spike ? 90 : swing(second));
        greatest = std::max(greatest, history.size());
        if (second != day)
            continue;
        // The merged points still cover every reading, at most the 600th part of their age each.
        const std::vector<HistoryPoint> points = history.points();
        EXPECT_LT(points.size(), 5000U);
        std::uint64_t count = 0;
        double end = -1;
        for (const HistoryPoint &point : points) {
            ASSERT_EQ(point.first, end + 1);
            ASSERT_LE(point.last - point.first, std::max(0.0, (day - point.first) / 250));
            const double peak = point.maximum == 90 ? 90.0 / static_cast<double>(point.count) : 0;
            ASSERT_NEAR(point.mean, swing(point.middle()), 0.02 + peak);
            end = point.last;
            count += point.count;
        }
        EXPECT_EQ(end, day);
        EXPECT_EQ(count, history.count());
        EXPECT_EQ(std::count_if(points.begin(), points.end(),
                      [](const HistoryPoint &point) { return point.maximum == 90; }),
            1); // A short peak stays visible.
    }
    EXPECT_LT(greatest, 8000U);
    EXPECT_EQ(history.newest().last, 30 * day - 1);
}

TEST(BoundedHistoryTest, keepsGapsWhenItMerges)
{
    BoundedHistory history;
    for (int second = 0; second < 20000; ++second) {
        if (second == 1000 || second == 1001)
            history.addGap();
        else
            history.add(second, 20);
    }
    const std::vector<HistoryPoint> points = history.points();
    const auto gap = std::find_if(
        points.begin(), points.end(), [](const HistoryPoint &point) { return point.isAfterGap; });
    ASSERT_NE(gap, points.end());
    EXPECT_EQ(gap->first, 1002);
    EXPECT_EQ((gap - 1)->last, 999);
    EXPECT_EQ(history.since(19990).size(), 10U);
    EXPECT_EQ(history.since(19990).front().first, 19990);
}

TEST(BoundedHistoryTest, thinsWithoutLosingReadings)
{
    BoundedHistory history;
    for (int second = 0; second < 500; ++second)
        history.add(second, second);
    const std::vector<HistoryPoint> few = thinned(history.points(), 100);
    ASSERT_EQ(few.size(), 100U);
    EXPECT_EQ(few[3].first, 15);
    EXPECT_EQ(few[3].last, 19);
    EXPECT_EQ(few[3].mean, 17);
    EXPECT_EQ(few[3].minimum, 15);
    EXPECT_EQ(few[3].maximum, 19);
    EXPECT_EQ(few[3].count, 5U);
}

} // namespace
