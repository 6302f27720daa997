#include "tools/kit/measure/linescan/RateLimits.h"

#include <gtest/gtest.h>

namespace {

struct LimitCase
{
    const char *name;
    RateFacts facts;
    double rate;
    double exposure;
    RateReason reason;
    double limit;
};

void PrintTo(const LimitCase &limit, std::ostream *out)
{
    *out << limit.name;
}

// 16,384 bytes per line and 2,100 MB/s are 128,174 lines per second.
const LimitCase limitCases[] = {
    {"possible", {80, 1.0, 12'500.0, 16'384.0, 2.1e9}, 10'000, 80, RateReason::None, 0},
    {"exactly at the limit", {80, 1.0, 12'500.0, 16'384.0, 2.1e9}, 12'500, 80, RateReason::None, 0},
    {"the exposure is too long", {80, 1.0, 12'500.0, 16'384.0, 2.1e9}, 20'000, 80, RateReason::Exposure,
        12'500},
    {"a shorter exposure is intended", {80, 1.0, 12'500.0, 16'384.0, 2.1e9}, 20'000, 50, RateReason::None, 0},
    {"the link is the first limit", {80, 1.0, 12'500.0, 16'384.0, 2.1e9}, 150'000, 5, RateReason::Link,
        2.1e9 / 16'384},
    {"the camera is the first limit", {2, 1.0, 100'000.0, 16'384.0, 2.1e9}, 150'000, 2, RateReason::Camera,
        100'000},
    {"the camera knows the link", {2, 1.0, 125'000.0, 16'384.0, 2.1e9}, 150'000, 2, RateReason::Link,
        125'000},
    {"dead time", {80, 1.0, 10'000.0, {}, {}}, 15'000, 60, RateReason::Exposure, 12'500},
    {"the exposure cannot be shorter", {80, 60.0, 10'000.0, {}, {}}, 15'000, 60, RateReason::Camera, 12'500},
    {"the speed of the link is not told", {0, {}, {}, 16'384.0, 0.0}, 1e9, 0, RateReason::None, 0},
    {"nothing is known", {}, 1e9, 0, RateReason::None, 0},
};

class RateLimitReasons : public testing::TestWithParam<LimitCase>
{ };

} // namespace

TEST_P(RateLimitReasons, areNamed)
{
    const LimitCase &expected = GetParam();
    const RateLimit limit = RateLimits(expected.facts).check(expected.rate, expected.exposure);
    EXPECT_EQ(limit.reason, expected.reason);
    EXPECT_NEAR(limit.rate, expected.limit, 1e-6 * expected.limit);
}

INSTANTIATE_TEST_SUITE_P(RateLimits, RateLimitReasons, testing::ValuesIn(limitCases));

TEST(RateLimits, longestExposureLeavesTheDeadTime)
{
    EXPECT_DOUBLE_EQ(RateLimits({80, 1.0, 12'500.0, {}, {}}).longestExposure(20'000), 50);
    const RateLimits withDeadTime({80, 1.0, 10'000.0, {}, {}});
    EXPECT_NEAR(*withDeadTime.deadTime(), 20, 1e-9);
    EXPECT_NEAR(withDeadTime.longestExposure(20'000), 30, 1e-9);
    EXPECT_DOUBLE_EQ(withDeadTime.longestExposure(1e6), 0);
    // The highest rate says nothing about the dead time if the exposure is short.
    EXPECT_FALSE(RateLimits({2, 1.0, 100'000.0, {}, {}}).deadTime());
}
