// These tests read the register description of each kind of camera with a node map that is not ours, and
// compare what it says with what the camera does.

#include "sdk/simulator/ZippedDescription.h"
#include "tests/simulator/CameraNodes.h"
#include "tests/simulator/TestCamera.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

using Kind = CameraNodes::Kind;

struct KindOfCamera
{
    const char *name;
    SensorKeys keys;
    const char *tlType;
};

SensorKeys keysOf(bool isColor, bool isLineScan, int taps)
{
    SensorKeys keys;
    keys.isColor = isColor;
    keys.isLineScan = isLineScan;
    keys.taps = taps;
    return keys;
}

const KindOfCamera kindsOfCameras[] = {
    {"AreaScan", keysOf(false, false, 1), "U3V"},
    {"AreaScanColor", keysOf(true, false, 1), "GEV"},
    {"LineScan", keysOf(false, true, 1), "CLHS"},
    {"LineScanTaps", keysOf(false, true, 2), "CL"},
    {"AreaScanTaps", keysOf(false, false, 4), "CL"},
};

/// Returns true for the features that have a value in the camera. The values of chunks are in images.
bool hasValue(const CameraNodes &nodes, const std::string &feature)
{
    static const std::set<std::string> chunks{
        "ChunkTimestamp", "ChunkExposureTime", "ChunkFrameID", "ChunkGain"};
    const Kind kind = nodes.kind(feature);
    return kind != Kind::Category && kind != Kind::Command && chunks.count(feature) == 0;
}

/// Returns true for the numbers that can be written.
bool hasLimits(const CameraNodes &nodes, const std::string &feature)
{
    const Kind kind = nodes.kind(feature);
    return (kind == Kind::Integer || kind == Kind::Float) && nodes.isWritable(feature);
}

} // namespace

class DescriptionTest : public testing::TestWithParam<KindOfCamera>
{
protected:
    TestFolder folder;
    TestCamera camera{folder, smallModel(GetParam().keys, GetParam().tlType)};
    const CameraNodes nodes{camera.camera()};
};

TEST_P(DescriptionTest, everyReferenceHasANode)
{
    EXPECT_EQ(nodes.missingNodes(), std::vector<std::string>{});
    const std::vector<std::string> features = nodes.features();
    EXPECT_EQ(std::set<std::string>(features.begin(), features.end()).size(), features.size());
    EXPECT_GT(features.size(), 60U);
}

TEST_P(DescriptionTest, everyFeatureCanBeRead)
{
    for (const std::string &feature : nodes.features())
        if (hasValue(nodes, feature) && nodes.isAvailable(feature))
            nodes.value(feature); // Fails the test if the feature cannot be read.
}

TEST_P(DescriptionTest, cameraHasTheLimitsOfTheDescription)
{
    for (const std::string &feature : nodes.features()) {
        if (!hasLimits(nodes, feature))
            continue;
        const CameraNodes::Limits limits = nodes.limits(feature);
        const double step = limits.increment > 0 ? limits.increment : 1 + limits.max / 1000;
        EXPECT_FALSE(nodes.setNumber(feature, limits.max + step)) << feature << ' ' << limits.max;
        EXPECT_FALSE(limits.min > 0 && nodes.setNumber(feature, limits.min - limits.min / 2)) << feature;
        EXPECT_FALSE(limits.increment > 1 && nodes.setNumber(feature, limits.min + 1)) << feature;
        EXPECT_TRUE(nodes.setNumber(feature, limits.min)) << feature;
        EXPECT_TRUE(nodes.setNumber(feature, nodes.limits(feature).max)) << feature;
    }
}

TEST_P(DescriptionTest, cameraAcceptsEveryEntryOfItsEnumerations)
{
    for (const std::string &feature : nodes.features()) {
        if (nodes.kind(feature) != Kind::Enumeration || !nodes.isWritable(feature))
            continue;
        const std::string before = nodes.value(feature);
        for (const std::string &entry : nodes.entries(feature)) {
            EXPECT_TRUE(nodes.setText(feature, entry)) << feature << ' ' << entry;
            EXPECT_EQ(nodes.value(feature), entry) << feature;
        }
        EXPECT_TRUE(nodes.setText(feature, before)) << feature;
    }
}

TEST_P(DescriptionTest, limitsOfTheRegionDependOnBinningAndOffset)
{
    EXPECT_TRUE(nodes.setNumber("Width", 16));
    EXPECT_EQ(nodes.limits("OffsetX").max, 48);
    EXPECT_TRUE(nodes.setNumber("OffsetX", 40));
    EXPECT_EQ(nodes.limits("Width").max, 24);
    EXPECT_TRUE(nodes.setNumber("BinningHorizontal", 2));
    EXPECT_EQ(nodes.value("WidthMax"), "32");
    EXPECT_EQ(nodes.value("Width"), "16"); // The smallest width; half of it would be 8.
    EXPECT_EQ(nodes.value("OffsetX"), "16");
}

TEST_P(DescriptionTest, binningComesBeforeTheRegionThatItScales)
{
    const std::vector<std::string> features = nodes.features();
    const auto position = [&](const char *name) { return std::find(features.begin(), features.end(), name); };
    EXPECT_LT(position("BinningHorizontal"), position("Width"));
    EXPECT_EQ(position("BinningVertical") == features.end(), GetParam().keys.isLineScan);
    if (!*GetParam().keys.isLineScan) {
        EXPECT_LT(position("BinningVertical"), position("Width"));
    }
}

TEST_P(DescriptionTest, lockedFeaturesAreLockedInBoth)
{
    EXPECT_TRUE(nodes.setNumber("TLParamsLocked", 1));
    for (const char *const feature : {"Width", "Height", "PixelFormat", "BinningHorizontal",
             "AcquisitionMode", "ChunkModeActive", "DeviceLinkThroughputLimitMode"}) {
        EXPECT_FALSE(nodes.isWritable(feature)) << feature;
        EXPECT_FALSE(nodes.setText(feature, nodes.value(feature))) << feature;
    }
    EXPECT_FALSE(nodes.isWritable("UserSetLoad"));
    EXPECT_FALSE(nodes.execute("UserSetLoad"));
    EXPECT_TRUE(nodes.setNumber("TLParamsLocked", 0));
    EXPECT_TRUE(nodes.setText("ExposureAuto", "Continuous"));
    EXPECT_FALSE(nodes.isWritable("ExposureTime"));
    EXPECT_FALSE(nodes.setNumber("ExposureTime", 100));
    EXPECT_TRUE(nodes.setText("ExposureAuto", "Off"));
    EXPECT_TRUE(nodes.setNumber("ExposureTime", 100));
}

TEST_P(DescriptionTest, selectorsKeepTheValuesApart)
{
    EXPECT_TRUE(nodes.setText("TriggerSelector", "AcquisitionStart"));
    EXPECT_TRUE(nodes.setText("TriggerMode", "On"));
    EXPECT_TRUE(nodes.setText("TriggerSelector", "FrameStart"));
    EXPECT_EQ(nodes.value("TriggerMode"), "Off");
    EXPECT_TRUE(nodes.setText("TriggerSelector", "AcquisitionStart"));
    EXPECT_EQ(nodes.value("TriggerMode"), "On");
    EXPECT_TRUE(nodes.setNumber("Gain", 6.02));
    EXPECT_EQ(camera.integer(RegisterId::GainRaw), 602);
}

INSTANTIATE_TEST_SUITE_P(AllKinds, DescriptionTest, testing::ValuesIn(kindsOfCameras),
    [](const testing::TestParamInfo<KindOfCamera> &kind) { return std::string(kind.param.name); });

TEST(ZippedDescription, containsTheSameText)
{
    TestFolder folder;
    TestCamera camera(folder, smallModel(keysOf(false, false, 4), "CL"));
    EXPECT_EQ(camera.camera().descriptionUrls().at(0).find("Local:SimulatedAreaScan4Taps.zip;100000;"), 0U);
    EXPECT_EQ(CameraNodes(camera.camera()).text(), descriptionText(zippedKind));
}
