#include "tools/kit/measure/focus/FocusHistory.h"
#include "tools/kit/measure/focus/FocusText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {
using Advice = FocusHistory::Advice;

constexpr double interval = 0.1; // Seconds.

/// Turns a lens whose best position is 0 and whose left edge is sharp earlier than its right edge.
class Turn
{
public:
    FocusHistory history;
    double position = -40;
    double seconds = 0;
    double leftBrightness = 0.4; // Brightness of the upper left region.
    double brightness = 0.4; // Brightness of the other regions.

    void to(double end, double speed = 20)
    {
        const double direction = end > position ? 1 : -1;
        while (position != end) {
            position += direction * std::min(speed * interval, std::abs(end - position));
            measure();
        }
    }

    void rest(double duration)
    {
        for (double end = seconds + duration; seconds < end;)
            measure();
    }

    FocusMeasurement picture() const
    {
        FocusMeasurement picture;
        picture.isExposed = true;
        picture.grid = {3, 3};
        picture.width = picture.height = 300;
        for (std::uint32_t i = 0; i < 9; ++i) {
            RegionFocus region;
            region.state = i == 8 ? RegionFocus::State::NoEdges : RegionFocus::State::Usable;
            region.centerX = 50 + 100 * (i % 3);
            region.centerY = 50 + 100 * (i / 3);
            const double best = (region.centerX - 150) / 20; // -5, 0, 5
            region.sharpness = i == 8 ? 1e-6 : sharpnessAt(position - best);
            region.brightness = i == 0 ? leftBrightness : brightness;
            picture.regions.push_back(region);
        }
        picture.brightness = brightness;
        picture.sharpness = sharpnessAt(position);
        return picture;
    }

private:
    static double sharpnessAt(double distance) { return 0.01 + 0.1 / (1 + distance * distance / 50); }

    void measure()
    {
        seconds += interval;
        history.add(seconds, picture());
    }
};
} // namespace

TEST(FocusHistory, AdvicesThroughTheBestPositionAndBack)
{
    Turn turn;
    EXPECT_EQ(turn.history.advice(), Advice::None);
    turn.rest(3);
    EXPECT_EQ(turn.history.advice(), Advice::Turn);
    turn.to(-5);
    EXPECT_EQ(turn.history.advice(), Advice::KeepTurning);
    turn.to(15);
    turn.rest(1);
    EXPECT_EQ(turn.history.advice(), Advice::TurnBack);
    turn.to(6, 5);
    EXPECT_EQ(turn.history.advice(), Advice::KeepTurning);
    turn.to(0, 5);
    turn.rest(2);
    EXPECT_EQ(turn.history.advice(), Advice::Done);
    EXPECT_NEAR(turn.history.share(), 1, 0.01);
    turn.to(-15);
    EXPECT_EQ(turn.history.advice(), Advice::TurnBack);
}

TEST(FocusHistory, PeaksAreHeldForEachRegion)
{
    Turn turn;
    turn.to(15);
    EXPECT_NEAR(turn.history.peak(), 0.11, 0.002);
    EXPECT_NEAR(*turn.history.regionPeak(0), 0.11, 0.005);
    EXPECT_LT(*turn.history.regionShare(0), *turn.history.regionShare(2)); // The right edge is nearer.
    EXPECT_FALSE(turn.history.regionPeak(8)); // It never had edges.
    turn.history.clear();
    EXPECT_EQ(turn.history.peak(), 0);
    EXPECT_FALSE(turn.history.regionShare(0));
}

TEST(FocusHistory, OrderInTimeTellsTheTilt)
{
    Turn turn;
    turn.to(40);
    turn.to(30);
    const FocusAnalysis analysis = analyseFocus(turn.history.lastTurn());
    ASSERT_TRUE(analysis.surface);
    EXPECT_NEAR(analysis.surface->right, 15.0 / 20, 0.05); // Positions divided by the speed.
    EXPECT_EQ(toEnglish(tiltSentence(*analysis.surface, {true, 2})).substr(0, 52),
        "The left edge became sharp before the right edge, by");
    EXPECT_FALSE(analysis.regions[8].peak);
}

TEST(FocusHistory, MovementIsToldFromLight)
{
    Turn turn;
    turn.rest(2);
    EXPECT_FALSE(turn.history.isMoving());
    turn.leftBrightness = turn.brightness = 0.6; // More light.
    turn.rest(0.5);
    EXPECT_FALSE(turn.history.isMoving());
    turn.rest(2);
    turn.leftBrightness = 0.5;
    turn.rest(0.5);
    EXPECT_TRUE(turn.history.isMoving());
    turn.rest(2);
    EXPECT_FALSE(turn.history.isMoving());
}

TEST(FocusHistory, OtherGridAndUnusablePicturesDoNotMix)
{
    Turn turn;
    turn.to(0);
    FocusMeasurement dark = turn.picture();
    dark.isExposed = false;
    turn.history.add(100, dark);
    EXPECT_LT(turn.history.samples().back().position, 100);
    FocusMeasurement other = turn.picture();
    other.grid = {9, 1};
    turn.history.add(101, other);
    EXPECT_EQ(turn.history.samples().size(), 1U);
}
