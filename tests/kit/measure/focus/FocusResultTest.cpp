#include "tools/kit/measure/focus/FocusResult.h"
#include "tests/kit/measure/focus/FocusPictures.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
FocusResult sweptResult()
{
    FocusPictures pictures(FocusPictures::sensor());
    pictures.options.grid = {3, 3};
    SweepResult sweep;
    sweep.axis = {"LensFocusPosition", "", 0, 1000, 1, true};
    sweep.fine = pictures.sweep(447, 527, 10);
    sweep.analysis = analyseFocus(sweep.fine);
    sweep.bestPosition = 487;
    sweep.last = sweep.fine[4].measurement;
    return focusResult(sweep);
}
} // namespace

TEST(FocusResult, JsonContainsBestPositionTiltAndRegions)
{
    const auto json = resultJson(sweptResult(), {});
    EXPECT_EQ(json["format"], "corvix-x-focus");
    const auto &result = json["result"];
    EXPECT_EQ(result["lens"], "LensFocusPosition");
    EXPECT_NEAR(result["analysis"]["best"].get<double>(), 487, 2);
    EXPECT_TRUE(result["analysis"]["surface"].contains("tiltDirection"));
    EXPECT_EQ(result["cornerSharesOfPeak"].size(), 4U);
    ASSERT_EQ(result["regions"].size(), 9U);
    EXPECT_EQ(result["regions"][5]["column"], 3);
    EXPECT_EQ(result["regions"][5]["row"], 2);
    EXPECT_GT(result["regions"][5]["shareOfPeakAtBest"].get<double>(), 0.7);
}

TEST(FocusResult, TableHasALineForEachSample)
{
    const std::string csv = resultCsv(sweptResult());
    EXPECT_EQ(csv.rfind("position,sharpness,brightness,row 1 column 1,row 1 column 2,", 0), 0U);
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 10);
    EXPECT_NE(csv.find("\n447.0,"), std::string::npos);
}
