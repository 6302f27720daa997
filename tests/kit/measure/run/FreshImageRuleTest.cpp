#include "tools/kit/measure/run/FreshImageRule.h"

#include <gtest/gtest.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

struct FreshImageCase
{
    const char *name;
    FreshImageRule::Timing timing;
    std::vector<std::uint64_t> receivedAt; // Milliseconds; the moment is at 1000.
    std::size_t firstFresh; // Index.
};

class FreshImages : public testing::TestWithParam<FreshImageCase>
{ };

} // namespace

TEST_P(FreshImages, imagesFromBeforeTheMomentAreLeftOut)
{
    constexpr std::uint64_t millisecond = 1000000;
    FreshImageRule rule(1000 * millisecond, GetParam().timing);
    std::size_t index = 0;
    for (const std::uint64_t receivedAt : GetParam().receivedAt) {
        CvxCPP::ImageInfo image;
        image.receivedAt = receivedAt * millisecond;
        EXPECT_EQ(rule.isFresh(image), index >= GetParam().firstFresh) << index;
        ++index;
    }
}

INSTANTIATE_TEST_SUITE_P(Cameras, FreshImages,
    testing::Values(
        FreshImageCase{"rateIsKnown", {10ms, 50ms, false}, {990, 1000, 1040, 1090, 1140, 1190}, 4},
        FreshImageCase{"imagesAreLate", {10ms, 20ms, false}, {1100, 1101, 1120, 1140}, 2},
        FreshImageCase{
            "exposureIsLongerThanThePeriod", {200ms, 50ms, false}, {1050, 1100, 1150, 1200, 1250, 1300}, 5},
        FreshImageCase{"rateIsMeasured", {10ms, {}, false}, {999, 1010, 1110, 1210, 1310}, 4},
        FreshImageCase{"triggered", {10ms, 50ms, true}, {990, 1055, 1500, 1600}, 2},
        FreshImageCase{"triggeredAtUnknownRate", {10ms, {}, true}, {990, 1009, 1011}, 2}),
    [](const auto &tested) { return tested.param.name; });
