#include "tests/kit/measure/thermal/TemperatureModel.h"

#include <gtest/gtest.h>

namespace {

struct ForecastCase
{
    double timeConstant;
    double interval;
    double noise;
    double step;
};

void PrintTo(const ForecastCase &value, std::ostream *stream)
{
    *stream << "tau " << value.timeConstant << " s, every " << value.interval << " s, noise " << value.noise
            << " K, rounded to " << value.step << " K";
}

class ForecastTest : public testing::TestWithParam<ForecastCase>
{
protected:
    TemperatureModel model(unsigned seed) const
    {
        TemperatureModel model;
        model.timeConstant = GetParam().timeConstant;
        model.noise = GetParam().noise;
        model.step = GetParam().step;
        model.seed = seed;
        return model;
    }
};

TEST_P(ForecastTest, knowsTheFinalValueAfterHalfTheTimeConstant)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        TemperatureModel camera = model(seed);
        PlaceMonitor monitor("Sensor");
        camera.feed(monitor, 0, camera.timeConstant / 2, GetParam().interval);
        const auto found = forecast(monitor.history());
        ASSERT_TRUE(found) << seed;
        EXPECT_NEAR(found->end, 51, 0.5) << seed;
        EXPECT_LT(std::abs(found->end - 51), 3 * found->endError + 1e-3) << seed;
        EXPECT_NEAR(found->timeConstant, camera.timeConstant, 0.15 * camera.timeConstant) << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Cameras, ForecastTest,
    testing::Values(ForecastCase{60, 1, 0, 0}, ForecastCase{60, 1, 0.002, 0.005},
        ForecastCase{60, 0.2, 0.005, 0.01}, ForecastCase{150, 1, 0.005, 0.01},
        ForecastCase{300, 1, 0.01, 0.02}, ForecastCase{300, 0.5, 0.01, 0.0625}));

TEST(ForecastOfCoarseReadings, isOnlyShownWhenItHolds)
{
    // A camera that reports half degrees: the final value has to come later, and has to be right then.
    int shown = 0;
    int early = 0;
    for (unsigned seed = 1; seed <= 10; ++seed) {
        TemperatureModel camera;
        camera.timeConstant = 200;
        camera.noise = 0.1;
        camera.step = 0.5;
        camera.seed = seed;
        PlaceMonitor monitor("");
        for (double seconds = 0; seconds < 1000; seconds += 20) {
            camera.feed(monitor, seconds, seconds + 20, 1);
            const auto found = forecast(monitor.history());
            if (!found)
                continue;
            ++shown;
            early += seconds < 100 ? 1 : 0;
            EXPECT_LT(std::abs(found->end - 51), 3.5 * found->endError + 0.05) << seed << " at " << seconds;
        }
    }
    EXPECT_GT(shown, 100);
    EXPECT_EQ(early, 0);
}

TEST(ForecastAfterChange, startsAnew)
{
    // One hour of work, then the stream is stopped: the old readings must not spoil the new forecast.
    TemperatureModel warm;
    warm.noise = 0.01;
    PlaceMonitor monitor("Sensor");
    warm.feed(monitor, 0, 3600, 1);
    TemperatureModel cooling{51, 32, 150, 0.01, 0, 2};
    cooling.feed(monitor, 3600, 3608, 1, 3600);
    const auto tooEarly = forecast(monitor.history());
    EXPECT_FALSE(tooEarly && std::abs(tooEarly->end - 32) > 1);
    cooling.feed(monitor, 3608, 3720, 1, 3600);
    const auto found = forecast(monitor.history());
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->end, 32, 0.5);
    EXPECT_GE(found->from, 3590);
}

TEST(ForecastAfterChange, doesNotBelieveABendInTheFirstReadings)
{
    // The readings begin while the camera still rests: until the rest is left out, there is no forecast.
    for (const double timeConstant : {60.0, 180.0, 300.0}) {
        TemperatureModel rest{32, 32, timeConstant, 0, 0, 1};
        TemperatureModel work{32, 51, timeConstant, 0, 0, 1};
        PlaceMonitor monitor("Sensor");
        rest.feed(monitor, 0, 1, 0.2);
        for (double second = 1; second < 60; second += 0.2) {
            work.feed(monitor, second, second + 0.1, 0.2, 0.9);
            const auto found = forecast(monitor.history());
            EXPECT_NEAR(found ? found->end : 51, 51, 0.5) << timeConstant << " at " << second;
        }
        EXPECT_TRUE(forecast(monitor.history()));
    }
}

TEST(ForecastAfterChange, doesNotBelieveACurveThroughTwoLoads)
{
    // Many readings are merged for the fit; merged readings must not pass for roughly rounded ones.
    TemperatureModel work{32, 51, 500, 0, 0, 1};
    PlaceMonitor monitor("Sensor");
    work.feed(monitor, 0, 600, 1);
    TemperatureModel less{work.truth(600), 48, 200, 0, 0, 1};
    for (double second = 600; second < 1200; second += 10) {
        less.feed(monitor, second, second + 10, 1, 600);
        const auto found = forecast(monitor.history());
        EXPECT_NEAR(found ? found->end : 48, 48, 0.5) << "at " << second + 10;
    }
    EXPECT_TRUE(forecast(monitor.history()));
}

TEST(ForecastToSteady, countsUntilTheLimit)
{
    const Forecast fast{51, 0.1, 150, 1, -19, 0};
    EXPECT_NEAR(fast.secondsToSteady(0), 150 * std::log(19 / 0.5), 1e-6);
    EXPECT_EQ(fast.secondsToSteady(1000), 0);
    const Forecast slow{51, 0.1, 3000, 1, -19, 0}; // Changes by less than 0.1 K per minute from 5 K on.
    EXPECT_NEAR(slow.secondsToSteady(0), 3000 * std::log(19 / 5.0), 1e-6);
}

} // namespace
