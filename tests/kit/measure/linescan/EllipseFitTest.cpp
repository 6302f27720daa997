#include "tools/kit/measure/linescan/EllipseFit.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const Ellipse tilted{310.25, 120.75, 90, 140, 0.3};

} // namespace

TEST(EllipseFit, findsTheEllipseOfExactPoints)
{
    const auto fit = fitEllipse(tilted.outline(200));
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->ellipse.centerX, tilted.centerX, 1e-6);
    EXPECT_NEAR(fit->ellipse.centerY, tilted.centerY, 1e-6);
    EXPECT_NEAR(fit->ellipse.halfWidth, tilted.halfWidth, 1e-6);
    EXPECT_NEAR(fit->ellipse.halfHeight, tilted.halfHeight, 1e-6);
    EXPECT_NEAR(fit->ellipse.correlation, tilted.correlation, 1e-9);
    EXPECT_NEAR(fit->residual, 0, 1e-6);
    EXPECT_EQ(fit->coveredShare, 1);
    EXPECT_NEAR(tilted.relativeDistance({tilted.centerX, tilted.centerY}), 0, 1e-9);
}

TEST(EllipseFit, leavesOutliersOut)
{
    std::vector<FitPoint> points = tilted.outline(300);
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0, 0.3);
    for (FitPoint &point : points)
        point = {point.x + noise(random), point.y + noise(random)};
    for (std::size_t i = 40; i < 70; ++i) // A notch.
        points[i].x -= 25;
    const auto fit = fitEllipse(points);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->ellipse.halfHeight / fit->ellipse.halfWidth, 140.0 / 90, 0.002);
    EXPECT_NEAR(fit->usedShare, 0.9, 0.02);
    EXPECT_LT(fit->residual, 0.5);
}

TEST(EllipseFit, noticesOtherShapes)
{
    std::vector<FitPoint> square;
    for (double i = -50; i < 50; ++i)
        for (const double side : {-50.0, 50.0}) {
            square.push_back({i, side});
            square.push_back({side, i});
        }
    const auto fit = fitEllipse(square);
    ASSERT_TRUE(fit);
    EXPECT_TRUE(fit->residual > 2 || fit->usedShare < 0.6 || fit->coveredShare < 0.85);

    const std::vector<FitPoint> all = tilted.outline(300);
    const auto arc = fitEllipse({all.begin(), all.begin() + 150});
    ASSERT_TRUE(arc);
    EXPECT_LT(arc->coveredShare, 0.6);
    EXPECT_FALSE(fitEllipse({{0, 0}, {1, 1}, {2, 0}}));
}
