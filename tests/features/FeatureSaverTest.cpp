#include "sdk/features/FeatureSaver.h"
#include "tests/features/TestCamera.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

/// Returns the lines of the file that saving gives, after the comments.
std::string savedLines(Device &device)
{
    SavedFeatures saved;
    EXPECT_TRUE(saveFeatures(device, saved));
    const std::string text = formatFeatureFile(saved.settings, "");
    return text.substr(text.find('\n', text.find("Device")) + 1);
}

constexpr char savedCamera[] = "Width\t640\nOffsetX\t0\nExposureAuto\tOff\nExposureTime\t10000\nReverseX\t0\n"
                               "TriggerSelector\tFrameStart\nTriggerMode\tOn\nTriggerSelector\tLineStart\n"
                               "TriggerMode\tOff\nLUTSelector\tRed\nLUTIndex\t0\nLUTValue\t7\nLUTIndex\t1\n"
                               "LUTValue\t7\nLUTSelector\tGreen\nLUTIndex\t0\nLUTValue\t9\nLUTIndex\t1\n"
                               "LUTValue\t7\n";

class FeatureSaverTest : public testing::Test
{
protected:
    FeatureSaverTest()
    {
        m_camera.set("TriggerMode", std::string("On"));
        m_camera.set("LUTSelector", std::string("Green"));
        m_camera.set("LUTIndex", std::int64_t(0));
        m_camera.set("LUTValue", std::int64_t(9));
    }

    TestCamera m_camera;
};

} // namespace

TEST_F(FeatureSaverTest, savesEachSelectorValueAndRestoresTheSelectors)
{
    const auto before = m_camera.changedValues();
    EXPECT_EQ(savedLines(m_camera), savedCamera);
    EXPECT_EQ(m_camera.changedValues(), before);
}

TEST(FeatureSaverOrderTest, unselectedFeaturesComeFirst)
{
    ScriptedDevice camera;
    camera.addEntries("GainSelector", {"All"});
    camera.add("Gain", 0.1);
    camera.add("Width", std::int64_t(8));
    camera.select("GainSelector", {"Gain"});
    EXPECT_EQ(savedLines(camera), "Width\t8\nGainSelector\tAll\nGain\t0.1\n");
}

TEST(FeatureDirectoryTest, outerSelectorsComeFirst)
{
    ScriptedDevice camera;
    for (const char *const name : {"LUTValue", "LUTIndex", "LUTSelector"})
        camera.add(name, std::int64_t(0));
    camera.select("LUTIndex", {"LUTValue", "LUTSelector"}); // A wrong description may contain a circle.
    camera.select("LUTSelector", {"LUTIndex"});
    std::vector<NodeInfo> nodes;
    ASSERT_TRUE(camera.GetNodes(nodes));
    EXPECT_EQ(FeatureDirectory(nodes).selectorsOf("LUTValue"),
        (std::vector<std::string>{"LUTSelector", "LUTIndex"}));
}

TEST_F(FeatureSaverTest, lockedFeaturesAreSavedAndOthersAreLeftOut)
{
    m_camera.set("ExposureAuto", std::string("Continuous"));
    m_camera.feature("OffsetX").state.access = NodeAccess::NotAvailable;
    m_camera.feature("ReverseX").info.isStreamable = false;
    const std::string lines = savedLines(m_camera);
    EXPECT_EQ(lines.substr(0, lines.find("TriggerSelector")),
        "Width\t640\nExposureAuto\tContinuous\nExposureTime\t10000\n");
}

TEST_F(FeatureSaverTest, valuesThatAFileCannotHoldAreNamed)
{
    m_camera.add("DeviceUserID", std::string("a\nb"));
    m_camera.add("UserText", std::string());
    SavedFeatures saved;
    ASSERT_TRUE(saveFeatures(m_camera, saved));
    ASSERT_EQ(saved.notes.size(), 2U);
    EXPECT_EQ(saved.notes[0].name + saved.notes[1].name, "DeviceUserIDUserText");
    EXPECT_EQ(savedLines(m_camera), savedCamera);
}

TEST_F(FeatureSaverTest, watchingSavesOnlyThePresentSelectorValues)
{
    for (const char *const name : {"TriggerSelector", "LUTSelector", "LUTIndex", "Width"})
        m_camera.feature(name).state.lockReason = LockReason::Watching;
    SavedFeatures saved;
    ASSERT_TRUE(saveFeatures(m_camera, saved));
    EXPECT_EQ(saved.notes.size(), 3U);
    for (const FeatureNote &note : saved.notes)
        EXPECT_NE(note.text.find("only its present value"), std::string::npos) << note.text;
    EXPECT_TRUE(m_camera.writes.empty());
    const std::string text = formatFeatureFile(saved.settings, "");
    EXPECT_NE(text.find("\nTriggerSelector\tFrameStart\nTriggerMode\tOn\nLUTSelector\tGreen\nLUTIndex\t0\n"
                        "LUTValue\t9\n"),
        std::string::npos)
        << text;
}

TEST_F(FeatureSaverTest, selectorValueThatTheCameraRefusesIsNamedAndTheRestIsSaved)
{
    m_camera.feature("TriggerSelector").state.availableEntries.push_back("Broken");
    auto &mode = m_camera.feature("TriggerMode");
    m_camera.feature("TriggerSelector").rule
        = [](NodeState &state) { state.maximum = std::string("LineStart"); };
    mode.rule = [this](NodeState &state) {
        if (m_camera.value("TriggerSelector") == NodeValue("Broken"))
            state.value = {};
    };
    const auto before = m_camera.value("TriggerSelector");
    SavedFeatures saved;
    ASSERT_TRUE(saveFeatures(m_camera, saved));
    EXPECT_EQ(saved.notes.size(), 1U);
    EXPECT_EQ(m_camera.value("TriggerSelector"), before);
    EXPECT_EQ(savedLines(m_camera), savedCamera);
}

TEST_F(FeatureSaverTest, commandsSurroundTheWork)
{
    m_camera.addCommand("DeviceFeaturePersistenceStart");
    m_camera.addCommand("DeviceFeaturePersistenceEnd");
    EXPECT_EQ(savedLines(m_camera), savedCamera);
    EXPECT_EQ(m_camera.writes.front(), "DeviceFeaturePersistenceStart");
    EXPECT_EQ(m_camera.writes.back(), "DeviceFeaturePersistenceEnd");
}

TEST_F(FeatureSaverTest, lossAtAnyCallIsReturned)
{
    savedLines(m_camera);
    const std::size_t callCount = std::exchange(m_camera.callCount, 0);
    ASSERT_GT(callCount, 20U);
    for (m_camera.callsUntilLoss = 0; m_camera.callsUntilLoss < callCount; ++m_camera.callsUntilLoss) {
        m_camera.callCount = 0;
        SavedFeatures saved;
        EXPECT_EQ(saveFeatures(m_camera, saved).code, CvxErrorDeviceLost) << m_camera.callsUntilLoss;
        EXPECT_TRUE(saved.settings.empty());
    }
}

TEST_F(FeatureSaverTest, cancellingRestoresTheSelectors)
{
    const auto before = m_camera.changedValues();
    for (unsigned count = 0; count < 8; ++count) {
        unsigned calls = 0;
        SavedFeatures saved;
        EXPECT_TRUE(saveFeatures(m_camera, saved, [&](std::size_t done, std::size_t total) {
            EXPECT_LE(done, total);
            return calls++ < count;
        }));
        EXPECT_TRUE(saved.isCancelled);
        EXPECT_EQ(m_camera.changedValues(), before);
    }
}
