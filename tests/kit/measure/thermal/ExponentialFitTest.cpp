#include "tools/kit/measure/thermal/ExponentialFit.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

std::vector<CurvePoint> curve(double offset, double amplitude, double scale, double noise, unsigned seed)
{
    std::mt19937 random(seed);
    std::normal_distribution<double> distribution;
    std::vector<CurvePoint> points;
    for (int index = 0; index < 100; ++index) {
        const double x = 1000 + index;
        points.push_back({x, offset + amplitude * std::exp(-index / scale) + noise * distribution(random)});
    }
    return points;
}

TEST(ExponentialFitTest, findsTheExactCurve)
{
    const auto fit = fitExponential(curve(51, -19, 70, 0, 1), 2, 5000);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->offset, 51, 1e-4);
    EXPECT_NEAR(fit->amplitude, -19, 1e-4);
    EXPECT_NEAR(fit->scale, 70, 1e-3);
    EXPECT_TRUE(fit->isScaleInside);
    EXPECT_NEAR(fit->at(1000), 32, 1e-5);
    EXPECT_LT(fit->residual, 1e-5);
}

TEST(ExponentialFitTest, statesAnUncertaintyThatHolds)
{
    int within = 0;
    int withinScale = 0;
    double squares = 0;
    constexpr int runs = 200;
    for (unsigned seed = 1; seed <= runs; ++seed) {
        const auto fit = fitExponential(curve(51, -19, 70, 0.05, seed), 2, 5000);
        ASSERT_TRUE(fit);
        within += std::abs(fit->offset - 51) < 2 * fit->offsetError ? 1 : 0;
        withinScale += std::abs(std::log(fit->scale / 70)) < 2 * fit->scaleError ? 1 : 0;
        squares += std::pow((fit->offset - 51) / fit->offsetError, 2);
    }
    EXPECT_GT(within, runs * 0.92);
    EXPECT_GT(withinScale, runs * 0.92);
    EXPECT_GT(squares / runs, 0.5); // Not larger than necessary either.
}

TEST(ExponentialFitTest, refusesWhatIsNoCurve)
{
    EXPECT_FALSE(fitExponential({{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}}, 1, 10));
    EXPECT_FALSE(fitExponential(curve(51, 0, 70, 0, 1), 2, 5000));
    std::vector<CurvePoint> line;
    for (int index = 0; index < 100; ++index)
        line.push_back({double(index), 0.1 * index});
    const auto fit = fitExponential(line, 2, 2000);
    ASSERT_TRUE(fit);
    EXPECT_FALSE(fit->isScaleInside);
}

} // namespace
