#include "tools/kit/measure/taps/TapBalancing.h"
#include "tests/kit/measure/taps/SimulatedTaps.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

class TapBalancing : public testing::Test
{
protected:
    std::string balance(TapSetting setting)
    {
        const MeasureProgress progress = [this](std::size_t, std::size_t) { return taps.frames < cancelAt; };
        return toEnglish(balanceTaps({taps, taps, progress}, options, setting, result));
    }

    void balanceBlackLevels()
    {
        taps.settings.target = SceneTarget::LensCap;
        EXPECT_EQ(balance(TapSetting::BlackLevel), "");
        taps.settings.target = SceneTarget::FlatField;
        options.darkLevel = result.after.taps.front().mean;
    }

    SimulatedTaps taps{sensorWithTaps()};
    TapOptions options;
    TapBalance result;
    std::uint64_t cancelAt = 1000000;
};

} // namespace

TEST_F(TapBalancing, mismatchOfSixPercentFallsBelowHalfAPercent)
{
    EXPECT_GT(taps.trueMismatch(), 0.03); // Deviation from the mean; tap 2 has 6 % less than tap 1.
    EXPECT_GT(taps.trueBlackLevelRange(), 5);
    balanceBlackLevels();
    EXPECT_TRUE(result.isReached);
    EXPECT_LT(taps.trueBlackLevelRange(), 2);
    EXPECT_EQ(balance(TapSetting::Gain), "");
    EXPECT_TRUE(result.isReached);
    EXPECT_LT(taps.trueMismatch(), 0.005);
    EXPECT_LT(result.after.mismatch, gainGoal);
    EXPECT_GT(result.before.mismatch, 0.03);
    EXPECT_LE(result.rounds, 3U);
    EXPECT_EQ(taps.value("GainSelector"), CvxCPP::NodeValue(std::string("All")));
    EXPECT_EQ(toJson(result)["settings"].size(), 4U);

    EXPECT_EQ(toEnglish(undoBalance(taps, result)), "");
    for (int tap = 1; tap <= 4; ++tap)
        EXPECT_EQ(taps.tapValue("Gain", tap), 0) << tap;
}

TEST_F(TapBalancing, gainWithoutUnitIsLearned)
{
    for (const double largest : {16.0, 1000.0}) {
        taps.isGainLinear = true;
        auto &gain = taps.feature("Gain");
        gain.info.unit = "";
        gain.state.minimum = 1.0;
        gain.state.maximum = largest;
        gain.state.increment = 0.001;
        for (const char *tap : {"All", "Tap1", "Tap2", "Tap3", "Tap4"}) {
            taps.set("GainSelector", std::string(tap));
            taps.set("Gain", 1.2);
        }
        EXPECT_EQ(balance(TapSetting::Gain), "");
        EXPECT_LT(result.after.mismatch, gainGoal) << largest;
    }
}

TEST_F(TapBalancing, coarseIncrementsGiveTheBestThatIsPossible)
{
    taps.feature("Gain").state.increment = 0.2; // 2.3 %
    EXPECT_EQ(balance(TapSetting::Gain), "");
    EXPECT_FALSE(result.isReached);
    EXPECT_LT(result.after.mismatch, 0.02);
    for (int tap = 1; tap <= 4; ++tap)
        EXPECT_EQ(taps.tapValue("Gain", tap), result.valuesAfter[static_cast<std::size_t>(tap - 1)]);
}

TEST_F(TapBalancing, automaticFunctionsAreOffMeanwhile)
{
    taps.addEntries("ExposureAuto", {"Continuous", "Off"});
    taps.feature("Gain").onWrite = [this](CvxCPP::NodeValue &) {
        EXPECT_EQ(taps.value("ExposureAuto"), CvxCPP::NodeValue(std::string("Off")));
    };
    EXPECT_EQ(balance(TapSetting::Gain), "");
    EXPECT_EQ(taps.value("ExposureAuto"), CvxCPP::NodeValue(std::string("Continuous")));
}

TEST_F(TapBalancing, cancellingAndOneTapAreNamed)
{
    cancelAt = 20;
    EXPECT_EQ(balance(TapSetting::Gain), toEnglish(cancelledSentence()));
    options.layout = TapLayout{};
    EXPECT_NE(balance(TapSetting::Gain).find("one tap only"), std::string::npos);
    options.layout = TapLayout{6, 1, 1, 1};
    EXPECT_NE(balance(TapSetting::Gain).find("Tap6"), std::string::npos);
    EXPECT_TRUE(std::all_of(taps.writes.begin(), taps.writes.end(),
        [](const std::string &name) { return name != "BlackLevel"; }));
}

TEST(TapBalancingWithoutFeatures, missingFeatureIsNamed)
{
    ScriptedDevice device;
    TapOptions options;
    const auto problemOf = [&] {
        const auto layout = findTapLayout(device, options);
        if (const auto *const problem = std::get_if<Sentence>(&layout))
            return toEnglish(*problem);
        const auto control = findTapControl(device, TapSetting::Gain, 4);
        const auto *const problem = std::get_if<Sentence>(&control);
        return problem ? toEnglish(*problem) : "";
    };
    EXPECT_NE(problemOf().find("DeviceTapGeometry"), std::string::npos);
    device.add("DeviceTapGeometry", std::string("Unknown"));
    EXPECT_NE(problemOf().find("\"Unknown\""), std::string::npos);
    device.set("DeviceTapGeometry", std::string("Geometry_4X_1Y"));
    EXPECT_NE(problemOf().find("\"GainSelector\""), std::string::npos);
    device.addEntries("GainSelector", {"AnalogTap1", "AnalogTap2", "AnalogTap3", "AnalogTap4"});
    EXPECT_NE(problemOf().find("\"Gain\""), std::string::npos);
    device.add("GainRaw", std::int64_t(100));
    EXPECT_EQ(problemOf(), "");
}
