#include "tests/kit/measure/thermal/TemperatureModel.h"

#include <gtest/gtest.h>

namespace {

TEST(PlaceMonitorTest, goesThroughTheStates)
{
    TemperatureModel warm{32, 51, 150, 0.02, 0, 1};
    PlaceMonitor monitor("Sensor");
    EXPECT_EQ(monitor.analyse().state, ThermalState::Unknown);
    warm.feed(monitor, 0, 20, 1);
    EXPECT_EQ(monitor.analyse().state, ThermalState::Unknown);
    EXPECT_NEAR(monitor.report().secondsToState, 11, 1);
    warm.feed(monitor, 20, 120, 1);
    EXPECT_EQ(monitor.analyse().state, ThermalState::WarmingUp);
    const double truth = 19 / 150.0 * std::exp(-90 / 150.0) * 60; // Slope in the middle of the window.
    EXPECT_NEAR(monitor.report().slope->perMinute, truth, 0.05 * truth);
    ASSERT_TRUE(monitor.report().secondsToSteady);
    EXPECT_NEAR(*monitor.report().secondsToSteady, 150 * std::log(19 / 0.5) - 120, 20);

    warm.feed(monitor, 120, 1500, 1);
    EXPECT_EQ(monitor.analyse().state, ThermalState::Steady);
    EXPECT_EQ(monitor.report().secondsToSteady, 0);
    TemperatureModel cooling{51, 32, 150, 0.02, 0, 2};
    cooling.feed(monitor, 1500, 1560, 1, 1500);
    EXPECT_EQ(monitor.analyse().state, ThermalState::Cooling);
    EXPECT_LT(monitor.report().slope->perMinute, -4);
}

TEST(PlaceMonitorTest, doesNotCallACoarseReadingSteady)
{
    // 0.4 K per minute in whole degrees: two minutes without any change are not steady.
    PlaceMonitor monitor("");
    for (int second = 0; second < 120; ++second)
        monitor.add(second, std::floor(40.1 + second * 0.4 / 60));
    EXPECT_EQ(monitor.analyse().state, ThermalState::Unknown);
    EXPECT_NEAR(monitor.report().secondsToState, 181, 1);
    for (int second = 120; second < 1200; ++second)
        monitor.add(second, std::floor(40.1 + second * 0.4 / 60));
    EXPECT_EQ(monitor.analyse().state, ThermalState::WarmingUp);
    EXPECT_NEAR(monitor.report().slope->perMinute, 0.4, 2 * monitor.report().slope->error);
}

TEST(PlaceMonitorTest, ignoresOutliersInTheRate)
{
    PlaceMonitor monitor("");
    for (int second = 0; second < 60; ++second)
        monitor.add(second, second % 7 == 3 ? 85.03 : 40.003 + second * 0.02);
    EXPECT_NEAR(monitor.analyse().slope->perMinute, 1.2, 0.01);
}

TEST(PlaceMonitorTest, hasAGapWhileTheCameraIsLost)
{
    TemperatureModel camera;
    PlaceMonitor monitor("Sensor");
    camera.feed(monitor, 0, 60, 1);
    monitor.add(60, std::nullopt);
    EXPECT_FALSE(monitor.report().celsius);
    EXPECT_EQ(monitor.history().count(), 60U);
    camera.feed(monitor, 100, 105, 1);
    EXPECT_TRUE(monitor.report().celsius);
    EXPECT_TRUE(monitor.history().since(100).front().isAfterGap);
    EXPECT_EQ(monitor.analyse().state, ThermalState::Unknown); // The rate does not reach over the gap.
}

} // namespace
