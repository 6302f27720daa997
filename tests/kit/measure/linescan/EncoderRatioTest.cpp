#include "tools/kit/measure/linescan/EncoderRatio.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct RatioCase
{
    const char *name;
    double target;
    RatioLimits limits;
    EncoderRatio best;
    double maxErrorPercent;
};

void PrintTo(const RatioCase &ratio, std::ostream *out)
{
    *out << ratio.name;
}

const FactorRange one;
const FactorRange to256{1, 256, 1};
const FactorRange to64{1, 64, 1};

const RatioCase ratioCases[] = {
    {"the divider alone", 0.2, {{1}, one, to256, one}, {1, 1, 5, 1}, 1e-9},
    {"the nearest divider", 0.29, {{1}, one, to256, one}, {1, 1, 4, 1}, 14},
    {"more lines than pulses need all edges", 4, {{1, 4}, one, to256, one}, {4, 1, 1, 1}, 1e-9},
    {"the multiplier", 2.5, {{1, 4}, to64, to256, one}, {1, 5, 2, 1}, 1e-9},
    {"all edges before a larger multiplier", 0.8, {{1, 4}, to64, to256, one}, {4, 1, 5, 1}, 1e-9},
    {"the smallest good multiplier", 3.14159265, {{1}, {1, 400, 1}, to256, one}, {1, 289, 92, 1}, 0.01},
    {"the multiplier has a step", 1.5, {{1}, {2, 64, 2}, to256, one}, {1, 6, 4, 1}, 1e-9},
    {"the divider has a step", 1.0 / 6, {{1}, one, {4, 64, 4}, one}, {1, 1, 8, 1}, 26},
    {"both dividers", 1.0 / 1000, {{1}, one, to256, to256}, {1, 1, 250, 4}, 1e-9},
    {"beyond the ranges", 100, {{1}, to64, to256, one}, {1, 64, 1, 1}, 36.1},
};

class EncoderRatios : public testing::TestWithParam<RatioCase>
{ };

} // namespace

TEST_P(EncoderRatios, bestOneIsFound)
{
    const auto &[name, target, limits, best, maxErrorPercent] = GetParam();
    const EncoderRatio ratio = bestEncoderRatio(target, limits);
    EXPECT_LE(std::abs(ratio.linesPerPulse() / target - 1) * 100, maxErrorPercent);
    EXPECT_EQ(
        std::make_tuple(ratio.countsPerPulse, ratio.multiplier, ratio.encoderDivider, ratio.triggerDivider),
        std::make_tuple(best.countsPerPulse, best.multiplier, best.encoderDivider, best.triggerDivider));
}

INSTANTIATE_TEST_SUITE_P(EncoderRatio, EncoderRatios, testing::ValuesIn(ratioCases));

TEST(EncoderRatio, noOtherFactorsAreBetter)
{
    const RatioLimits limits{{1, 4}, {1, 12, 1}, {1, 16, 1}, one};
    for (double target = 0.07; target < 40; target *= 1.07) {
        const double error = std::abs(bestEncoderRatio(target, limits).linesPerPulse() / target - 1);
        for (const int counts : limits.countsPerPulse)
            for (std::int64_t multiplier = 1; multiplier <= 12; ++multiplier)
                for (std::int64_t divider = 1; divider <= 16; ++divider) {
                    const EncoderRatio other{counts, multiplier, divider, 1};
                    EXPECT_LE(error, std::abs(other.linesPerPulse() / target - 1) + equalRatio);
                }
    }
}
