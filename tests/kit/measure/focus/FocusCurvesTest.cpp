#include "tests/kit/measure/focus/FocusPictures.h"
#include "tools/kit/measure/focus/FocusText.h"
#include "tools/kit/measure/focus/NoiseCurve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

TEST(PeakFit, PointedPeakBetweenUnevenPositionsIsFound)
{
    std::vector<FocusPoint> points;
    for (const double position : {0.0, 10.0, 14.0, 17.0, 19.0, 22.0, 26.0, 29.0, 31.0, 36.0, 60.0})
        points.push_back({position, std::exp(-std::abs(position - 23.4) / 6)});
    const auto peak = fitPeak(points);
    ASSERT_TRUE(peak);
    EXPECT_NEAR(peak->position, 23.4, 0.5);
    EXPECT_TRUE(peak->isBracketed);
}

TEST(PeakFit, PeakAtTheEndIsNotBracketed)
{
    const auto peak = fitPeak({{0, 1}, {1, 2}, {2, 4}, {3, 7}});
    ASSERT_TRUE(peak);
    EXPECT_FALSE(peak->isBracketed);
    EXPECT_EQ(peak->position, 3);
    EXPECT_FALSE(fitPeak({{0, 1}, {1, 2}}));
}

TEST(NoiseCurve, EdgesAndTheirBrightnessDoNotChangeTheCurve)
{
    std::mt19937 random(3);
    std::vector<NoiseCurve::Block> blocks;
    std::gamma_distribution<double> chiSquare(8, 1.0 / 8); // Distribution of the mean of 16 squares.
    for (int i = 0; i < 6000; ++i) {
        const double mean = 10 + i % 90;
        const bool hasEdges = i % 3 == 0 || (mean > 40 && mean < 60); // One brightness occurs at edges only.
        blocks.push_back({mean, (2 + 0.5 * mean) * chiSquare(random) + (hasEdges ? 20 + i % 400 : 0)});
    }
    const NoiseCurve curve(blocks);
    for (const double value : {15.0, 30.0, 50.0, 70.0, 95.0, 120.0})
        EXPECT_NEAR(curve.variance(value), 2 + 0.5 * value, 0.07 * (2 + 0.5 * value)) << value;
}

TEST(FocusSurface, TiltAndCurvatureAreSeparated)
{
    std::vector<SurfacePoint> points;
    for (const double x : {-0.4, -0.2, 0.0, 0.2, 0.4})
        for (const double y : {-0.4, -0.2, 0.0, 0.2, 0.4})
            points.push_back(
                {x, y, 100 + 6 * x - 8 * y + 5 * (x * x + y * y) * 2 + 0.01 * std::sin(100 * x + 37 * y)});
    points[7].position += 60; // A region that something moving has crossed.
    const auto surface = fitSurface(points, false);
    ASSERT_TRUE(surface);
    EXPECT_NEAR(surface->center, 100, 0.1);
    EXPECT_NEAR(surface->tilt(), 10, 0.1);
    EXPECT_NEAR(surface->angle(), 360 - 53.13, 1);
    EXPECT_NEAR(surface->curvature, 5, 0.1);
    EXPECT_TRUE(surface->isTilted());
    EXPECT_EQ(toEnglish(tiltSentence(*surface, {false, 0})),
        "The upper right corner is sharp at a higher position than the lower left corner, by 10.");
    EXPECT_FALSE(fitSurface({{-0.4, 0, 1}, {0, 0, 1}, {0.4, 0, 1}}, false)); // In one row: no direction down.
}

TEST(FocusAnalysis, TiltOfTheSensorIsFoundAndNamed)
{
    const struct
    {
        double angle;
        const char *name;
    } cases[] = {{0, "right"}, {135, "lower left"}, {270, "upper"}};
    for (const auto &[angle, name] : cases) {
        SensorModel model = FocusPictures::sensor();
        model.focusTilt = 20;
        model.focusTiltAngle = angle;
        FocusPictures pictures(model);
        const FocusAnalysis analysis = analyseFocus(pictures.sweep(427, 547, 4));
        ASSERT_TRUE(analysis.surface);
        EXPECT_NEAR(*analysis.best, 487, 1) << angle;
        EXPECT_NEAR(analysis.surface->tilt(), 20, 4) << angle;
        EXPECT_EQ(directionName(analysis.surface->angle()), name);
        EXPECT_TRUE(analysis.surface->isTilted());
    }
}

TEST(FocusAnalysis, LineHasATiltAlongItself)
{
    SensorModel model = FocusPictures::lineSensor();
    model.focusTilt = 20;
    model.focusTiltAngle = 180;
    FocusPictures pictures(model);
    const FocusAnalysis analysis = analyseFocus(pictures.sweep(427, 547, 4));
    ASSERT_TRUE(analysis.surface);
    EXPECT_NEAR(*analysis.best, 487, 1);
    EXPECT_NEAR(analysis.surface->right, -20, 3);
    EXPECT_EQ(analysis.surface->down, 0);
}
