#include "sdk/camerahost/LossDetector.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class LossDetectorTest : public testing::Test
{
protected:
    LossDetectorTest() { detector.start(start); }

    bool isDueAfter(std::chrono::milliseconds time) const { return detector.isCheckDue(start + time); }

    const LossDetector::TimePoint start{1h};
    LossDetector detector;
};

} // namespace

TEST_F(LossDetectorTest, checkIsDueAfterASecondWithoutImages)
{
    EXPECT_FALSE(isDueAfter(999ms));
    EXPECT_TRUE(isDueAfter(1000ms));
    detector.noteSuccess(start + 800ms);
    EXPECT_FALSE(isDueAfter(1799ms));
    EXPECT_TRUE(isDueAfter(1800ms));
}

TEST_F(LossDetectorTest, suspicionMakesTheCheckDueAtOnce)
{
    detector.noteSuspicion(start + 10ms);
    EXPECT_TRUE(isDueAfter(10ms));
    detector.noteSuccess(start + 10ms);
    EXPECT_FALSE(isDueAfter(1009ms));
}

TEST_F(LossDetectorTest, suspicionDoesNotDelayTheCheck)
{
    detector.noteSuspicion(start + 1500ms);
    EXPECT_TRUE(isDueAfter(1000ms));
}

TEST_F(LossDetectorTest, cameraIsLostAfterTwoFailuresInARow)
{
    detector.noteFailure(start);
    EXPECT_FALSE(detector.isLost());
    detector.noteSuccess(start);
    detector.noteFailure(start);
    EXPECT_FALSE(detector.isLost());
    detector.noteFailure(start);
    EXPECT_TRUE(detector.isLost());
}

TEST_F(LossDetectorTest, failedCheckIsRepeatedSoonButNotAtOnce)
{
    detector.noteFailure(start);
    detector.noteSuspicion(start);
    EXPECT_FALSE(isDueAfter(99ms));
    EXPECT_TRUE(isDueAfter(100ms));
}
