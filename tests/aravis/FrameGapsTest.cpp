// These tests check how missing images are counted.

#include "sdk/aravis/FrameGaps.h"

#include <gtest/gtest.h>
#include <vector>

TEST(FrameGaps, missingImagesAreCounted)
{
    const struct
    {
        std::vector<std::uint64_t> frameIds;
        std::uint64_t missing;
        const char *description;
    } cases[] = {
        {{7}, 0, "the first image can have any number"},
        {{7, 8, 9}, 0, "nothing is missing"},
        {{7, 10, 11, 13}, 3, "gaps"},
        {{7, 7}, 0, "the same number again"},
        {{7, 9, 8, 10}, 1, "a late image"},
        {{65534, 1, 65535, 2}, 1, "a late image when a short number starts again"},
        {{5, 65000}, 64994, "a wide gap"},
        {{65535, 1, 2}, 0, "a short number starts again at 1"},
        {{65534, 2}, 2, "65535 and 1 are missing"},
        {{200, 1}, 0, "a restart of the camera"},
        {{70000, 1}, 0, "a restart of a camera with long numbers"},
        {{65535, 0, 1}, 0, "a camera that counts from 0"},
    };
    for (const auto &testCase : cases) {
        FrameGaps gaps;
        std::uint64_t missing = 0;
        for (const std::uint64_t frameId : testCase.frameIds)
            missing += gaps.missingBefore(frameId);
        EXPECT_EQ(missing, testCase.missing) << testCase.description;
    }
}

TEST(FrameGaps, nextNumberIsExpected)
{
    FrameGaps gaps;
    EXPECT_EQ(gaps.expectedId(), 0U);
    for (const auto &[frameId, expected] : {std::pair{1000U, 1001U}, {65535U, 1U}, {70000U, 70001U}}) {
        gaps.missingBefore(frameId);
        EXPECT_EQ(gaps.expectedId(), expected);
    }
}
