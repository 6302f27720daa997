#include "tools/kit/measure/thermal/ThresholdWatch.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

TEST(ThresholdWatchTest, reportsEachChangeOnce)
{
    struct Step
    {
        double celsius;
        std::optional<AlertLevel> change;
    };
    const std::vector<Step> steps = {{49.9, {}}, {50.1, AlertLevel::Warning}, {49.5, {}}, {50.2, {}},
        {60, AlertLevel::Alarm}, {59.1, {}}, {58.9, AlertLevel::Warning}, {49.1, {}},
        {48.9, AlertLevel::Normal}, {61, AlertLevel::Alarm}, {20, AlertLevel::Normal}};
    ThresholdWatch watch;
    watch.setThresholds({50, 60, 1});
    for (const Step &step : steps)
        EXPECT_EQ(watch.update(step.celsius), step.change) << step.celsius;
}

TEST(ThresholdWatchTest, needsNoThreshold)
{
    ThresholdWatch watch;
    EXPECT_EQ(watch.update(99), std::nullopt);
    watch.setThresholds({std::nullopt, 60, 1});
    EXPECT_EQ(watch.update(99), AlertLevel::Alarm);
}

} // namespace
