#include "sdk/features/FeatureComparison.h"
#include "sdk/features/FeatureSaver.h"
#include "tests/features/TestCamera.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

ComparedSide sideOf(const std::string &lines)
{
    const auto parsed = parseFeatureFile("# {05D8C294-F295-4dfb-9D01-096BD04049F4}\n" + lines);
    return {std::get<FeatureFile>(parsed).settings, {}};
}

ComparedSide sideOf(Device &device, const std::vector<FeatureSetting> &others = {})
{
    std::vector<NodeInfo> nodes;
    EXPECT_TRUE(device.GetNodes(nodes));
    ComparedSide side{{}, FeatureDirectory(std::move(nodes))};
    SavedFeatures read;
    EXPECT_TRUE(readFeatures(device, side.directory, settingNames(side.directory, others), read));
    side.settings = std::move(read.settings);
    return side;
}

/// Returns what differs, for example "Gain[GainSelector=All]:1|2".
std::string differences(const ComparedSide &left, const ComparedSide &right)
{
    std::string text;
    for (const ComparedFeature &feature : compareFeatures(left, right)) {
        if (feature.difference == FeatureDifference::Equal)
            continue;
        text += (text.empty() ? "" : " ") + feature.name;
        for (const SelectorSetting &selector : feature.selectors)
            text += '[' + selector.name + '=' + selector.value + ']';
        text += ':' + feature.left + '|' + feature.right;
    }
    return text;
}

struct FilesRow
{
    const char *name;
    const char *left;
    const char *right;
    const char *expected;
};

class FilesTest : public testing::TestWithParam<FilesRow>
{ };

const FilesRow filesRows[] = {
    {"Equal", "Width\t1\nGain\t1e3", "Gain\t1000\nWidth\t0x1", ""},
    {"Different", "Width\t1", "Width\t2", "Width:1|2"},
    {"OneSideOnly", "A\t1\nB\t2", "B\t2\nC\t3", "A:1| C:|3"},
    {"SelectorLines", "S1Selector\tA\nM\tOn\nS1Selector\tB\nM\tOff",
        "S1Selector\tB\nM\tOn\nS1Selector\tA\nM\tOn", "M[S1Selector=B]:Off|On"},
    {"OtherForm", "GSelector\tA\nM\t1\nGSelector\tB\nM\t2", "M\t{GSelector=B}\t2\nM\t{GSelector=A}\t3",
        "M[GSelector=A]:1|3"},
    {"OneSideWithoutSelector", "GSelector\tA\nM\t1\nGSelector\tB\nM\t2\nN\t5", "N\t5\nM\t3",
        "M[GSelector=A]:1| M[GSelector=B]:2| M:|3"},
    {"NestedSelectors", "LSelector\tR\nIIndex\t0\nV\t1\nIIndex\t1\nV\t2\nLSelector\tG\nIIndex\t0\nV\t3",
        "LSelector\tG\nIIndex\t0\nV\t4\nLSelector\tR\nIIndex\t1\nV\t2\nIIndex\t0\nV\t1",
        "V[IIndex=0][LSelector=G]:3|4"},
    {"OneSideWithoutSelectorButOneLine", "M\t{GSelector=A}\t1", "M\t1", ""},
    {"ContradictingSelectors", "M\t{GSelector=A}\t1", "M\t{GSelector=B}\t1",
        "M[GSelector=A]:1| M[GSelector=B]:|1"},
    {"FeatureBesideSelectors", "GSelector\tA\nM\t1\nGSelector\tB\nM\t2\nW\t1\nW\t1",
        "GSelector\tA\nW\t1\nM\t1\nGSelector\tB\nM\t2", ""},
    {"LastRepeatCounts", "A\t1\nA\t2", "A\t2", ""},
};

} // namespace

TEST_P(FilesTest, filesAreComparedUnderTheirSelectors)
{
    EXPECT_EQ(differences(sideOf(GetParam().left), sideOf(GetParam().right)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Files, FilesTest, testing::ValuesIn(filesRows),
    [](const auto &information) { return information.param.name; });

TEST(FeatureComparisonTest, cameraAndItsFileAreEqual)
{
    TestCamera camera;
    SavedFeatures saved;
    ASSERT_TRUE(saveFeatures(camera, saved));
    const ComparedSide file = sideOf(formatFeatureFile(saved.settings, "").substr(41));
    EXPECT_EQ(differences(sideOf(camera), file), "");
    EXPECT_EQ(compareFeatures(file, sideOf(camera)).size(), 11U);
    camera.set("ExposureTime", 10000.5);
    camera.set("LUTValue", std::int64_t(8));
    EXPECT_EQ(differences(file, sideOf(camera)),
        "ExposureTime:10000|10000.5 LUTValue[LUTSelector=Red][LUTIndex=1]:7|8");
}

TEST(FeatureComparisonTest, twoCamerasAreComparedInTheOrderOfTheirFeatures)
{
    TestCamera left, right;
    right.set("TriggerSelector", std::string("LineStart")); // The choice itself is no setting.
    right.set("TriggerMode", std::string("On"));
    left.add("OnlyLeft", true);
    right.set("Width", std::int64_t(1));
    EXPECT_EQ(differences(sideOf(left), sideOf(right)),
        "Width:640|1 TriggerMode[TriggerSelector=LineStart]:Off|On OnlyLeft:1|");
}

TEST(FeatureComparisonTest, fileOfAnotherProgramIsComparedByTheTypesOfTheCamera)
{
    TestCamera camera;
    camera.add("UserText", std::string("007"));
    const ComparedSide file
        = sideOf("ReverseX\tFALSE\nExposureTime\t10000,0\nUserText\t7\n"
                 "DeviceSerialNumber\t1002\nTriggerMode\t{TriggerSelector=FrameStart }\tOff\n"
                 "LUTValue\t{LUTSelector=Red LUTIndex=0x1}\t7");
    const std::string text = differences(sideOf(camera, file.settings), file);
    EXPECT_NE(text.find("UserText:007|7"), std::string::npos) << text;
    EXPECT_NE(text.find("DeviceSerialNumber:1001|1002"), std::string::npos) << text;
    for (const char *const equal : {"ReverseX", "ExposureTime", "TriggerMode[TriggerSelector=FrameStart]",
             "LUTValue[LUTSelector=Red][LUTIndex=1]"})
        EXPECT_EQ(text.find(equal), std::string::npos) << text;
}

TEST(FeatureComparisonTest, valuesOfOneCameraOrOneMomentAreIgnorable)
{
    for (const char *const name : {"DeviceSerialNumber", "DeviceTemperature", "TimestampLatchValue",
             "CounterValue", "GevCurrentIPAddress", "DeviceID"})
        EXPECT_TRUE(isIgnorableFeature(name)) << name;
    for (const char *const name : {"Width", "CounterEventSource", "AcquisitionFrameCount", "LineMode"})
        EXPECT_FALSE(isIgnorableFeature(name)) << name;
}
