#include "sdk/camerahost/FrameGapCounter.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using Ids = std::vector<std::optional<std::uint64_t>>;

struct Row
{
    const char *name;
    Ids ids;
    std::uint64_t missing;
};

class FrameGapCounterTest : public testing::TestWithParam<Row>
{ };

} // namespace

TEST_P(FrameGapCounterTest, countsMissingImages)
{
    FrameGapCounter counter;
    std::uint64_t missing = 0;
    for (const auto &id : GetParam().ids)
        missing += counter.next(id);
    EXPECT_EQ(missing, GetParam().missing);
}

const Row gapRows[] = {
    {"noImage", {}, 0},
    {"anyFirstId", {700, 701}, 0},
    {"gaps", {1, 3, 4, 10}, 1 + 5},
    {"sameIdAlways", {0, 0, 0}, 0},
    {"sixteenBitsWrapToOne", {65534, 65535, 1, 2}, 0},
    {"gapAtTheWrap", {65534, 2}, 2},
    {"gapRightAfterTheWrap", {65535, 4}, 3},
    {"widerIdsDoNotWrap", {65535, 65536, 65538}, 1},
    {"widerIdsRestart", {65536, 65535, 1}, 0},
    {"restart", {5000, 1, 2}, 0},
    {"restartAtZero", {65535, 0, 1}, 0},
    {"absurdGap", {1, 1000002, 9000000000000000000U}, 1000000},
    {"unknownId", {1, std::nullopt, 3}, 0},
    {"unknownIdAtTheWrap", {65535, std::nullopt, 2}, 0},
    {"unknownIdFirst", {std::nullopt, 9, 11}, 1},
    {"noIds", {std::nullopt, std::nullopt}, 0},
};
INSTANTIATE_TEST_SUITE_P(
    , FrameGapCounterTest, testing::ValuesIn(gapRows), [](const auto &row) { return row.param.name; });
