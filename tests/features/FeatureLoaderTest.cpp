#include "sdk/features/FeatureLoader.h"
#include "tests/features/TestCamera.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

FeatureFile fileOf(const std::string &lines)
{
    return std::get<FeatureFile>(parseFeatureFile("# {05D8C294-F295-4dfb-9D01-096BD04049F4}\n" + lines));
}

/// Returns the outcomes as a text that a test can contain, for example "Width:changed".
std::string describeReport(const LoadReport &report)
{
    static constexpr const char *names[] = {"unchanged", "changed", "overruled", "failed"};
    std::string text;
    for (const FeatureChange &change : report.changes)
        text += (text.empty() ? "" : " ") + change.setting.name + ':'
            + names[static_cast<std::size_t>(change.outcome)];
    return text;
}

class FeatureLoaderTest : public testing::Test
{
protected:
    std::string load(const std::string &lines)
    {
        m_result = loadFeatures(m_camera, fileOf(lines), m_report);
        return describeReport(m_report);
    }

    std::string loadAll(const std::string &lines)
    {
        m_result = loadAllFeatures(m_camera, fileOf(lines), m_report);
        return describeReport(m_report);
    }

    std::int64_t integer(const char *name) { return std::get<std::int64_t>(m_camera.value(name)); }

    TestCamera m_camera;
    LoadReport m_report;
    CvxResult m_result;
};

} // namespace

TEST_F(FeatureLoaderTest, limitsThatDependOnEachOtherLoadInAnyOrder)
{
    for (const char *const lines : {"Width\t1000\nOffsetX\t280", "Width\t200\nOffsetX\t1000",
             "OffsetX\t600\nWidth\t640", "OffsetX\t0\nWidth\t1280", "Width\t300\nOffsetX\t980"}) {
        load(lines);
        EXPECT_TRUE(m_result);
        EXPECT_EQ(m_report.count(FeatureOutcome::Failed), 0U) << lines;
        load(lines);
        EXPECT_EQ(m_report.count(FeatureOutcome::Unchanged), 2U);
    }
}

TEST_F(FeatureLoaderTest, lockedFeatureWaitsUntilTheFileUnlocksIt)
{
    m_camera.set("ExposureAuto", std::string("Continuous"));
    EXPECT_EQ(load("ExposureTime\t500\nExposureAuto\tOff"), "ExposureTime:changed ExposureAuto:changed");
    EXPECT_EQ(m_report.changes[0].before + ' ' + m_report.changes[0].after, "10000 500");
}

TEST_F(FeatureLoaderTest, lockThatTheFileWantsIsNoFailure)
{
    EXPECT_EQ(
        load("ExposureAuto\tContinuous\nExposureTime\t500"), "ExposureAuto:changed ExposureTime:overruled");
    EXPECT_NE(m_report.changes[1].reason.find("ExposureAuto"), std::string::npos);
    EXPECT_EQ(load("ExposureTime\t500"), "ExposureTime:failed");
}

TEST_F(FeatureLoaderTest, settingThatALaterOneChangesIsWrittenAgain)
{
    m_camera.add("Binning", std::int64_t(1)).onWrite
        = [this](NodeValue &) { m_camera.set("Width", integer("Width") / 2); };
    EXPECT_EQ(load("Width\t600\nBinning\t2"), "Width:changed Binning:changed");
    EXPECT_EQ(integer("Width"), 600);
}

TEST_F(FeatureLoaderTest, eachBadLineFailsAloneWithAReason)
{
    EXPECT_EQ(load("Nothing\t1\nWidth\tmany\nOffsetX\t4\nDeviceSerialNumber\t7\nReverseX\ttrue\n"
                   "ExposureTime\t12,345\nTriggerSelector\tNone\nTriggerMode\tOn\nHeight\t{None=1}\t1"),
        "Nothing:failed Width:failed OffsetX:changed DeviceSerialNumber:failed ReverseX:changed "
        "ExposureTime:failed TriggerMode:failed Height:failed");
    for (const FeatureChange &change : m_report.changes)
        EXPECT_EQ(change.reason.empty(), change.outcome == FeatureOutcome::Changed) << change.setting.name;
    EXPECT_TRUE(m_report.isApplied);
}

TEST_F(FeatureLoaderTest, valueIsReadBackWithinItsIncrement)
{
    m_camera.feature("ExposureTime").onWrite = [](NodeValue &value) { value = std::get<double>(value) + 4; };
    EXPECT_EQ(load("ExposureTime\t100"), "ExposureTime:failed");
    EXPECT_EQ(m_report.changes[0].reason, "The camera made 104 of it.");
    m_camera.feature("ExposureTime").state.increment = 10.0;
    EXPECT_EQ(load("ExposureTime\t200"), "ExposureTime:changed");
}

TEST_F(FeatureLoaderTest, settingsReachTheirSelectorsInBothForms)
{
    for (const char *const lines : {"LUTSelector\tGreen\nLUTIndex\t0\nLUTValue\t1\nLUTIndex\t1\nLUTValue\t2\n"
                                    "TriggerSelector\tLineStart\nWidth\t320\nTriggerMode\tOn",
             "LUTValue\t{LUTSelector=Green\tLUTIndex=0}\t1\nLUTValue\t{LUTIndex=1\tLUTSelector=Green}\t2\n"
             "Width\t320\nTriggerMode\t{TriggerSelector=LineStart}\tOn"}) {
        TestCamera camera;
        ASSERT_TRUE(loadFeatures(camera, fileOf(lines), m_report));
        EXPECT_EQ(m_report.count(FeatureOutcome::Changed), 4U);
        const std::map<std::string, NodeValue> expected{{"Width", std::int64_t(320)},
            {"TriggerMode/TriggerSelector=LineStart", std::string("On")},
            {"LUTValue/LUTSelector=Green/LUTIndex=0", std::int64_t(1)},
            {"LUTValue/LUTSelector=Green/LUTIndex=1", std::int64_t(2)}};
        EXPECT_EQ(camera.changedValues(), expected);
    }
}

TEST_F(FeatureLoaderTest, failedLineIsTriedAgainUnderItsOwnSelectors)
{
    // The first line needs the second one, which is for another value of the selector.
    m_camera.feature("TriggerMode").rule = [this](NodeState &state) {
        const bool isFirst = m_camera.value("TriggerSelector") == NodeValue("FrameStart");
        if (isFirst && integer("Width") != 320)
            state.lockReason = LockReason::LockedByNode;
    };
    EXPECT_EQ(
        load("TriggerSelector\tFrameStart\nTriggerMode\tOn\nTriggerSelector\tLineStart\nTriggerMode\tOn\n"
             "Width\t320"),
        "TriggerMode:changed TriggerMode:changed Width:changed");
    EXPECT_EQ(m_camera.value("TriggerSelector"), NodeValue("FrameStart"));
}

TEST_F(FeatureLoaderTest, lastOfRepeatedLinesWins)
{
    m_camera.set("Width", std::int64_t(300));
    EXPECT_EQ(load("Width\t100\nWidth\t300"), "Width:unchanged");
    EXPECT_EQ(integer("Width"), 300);
    m_camera.set("OffsetX", std::int64_t(640));
    m_camera.writes.clear();
    EXPECT_EQ(load("Width\t1000\nWidth\t200\nOffsetX\t0"), "Width:changed OffsetX:changed");
    EXPECT_EQ(m_camera.writes, (std::vector<std::string>{"Width", "OffsetX"}));
}

TEST_F(FeatureLoaderTest, valuesThatTheCameraHasAreNotWritten)
{
    EXPECT_EQ(load("Width\t640\nTriggerSelector\tFrameStart\nTriggerMode\tOff"),
        "Width:unchanged TriggerMode:unchanged");
    EXPECT_TRUE(m_camera.writes.empty());
}

TEST_F(FeatureLoaderTest, planWritesNothing)
{
    const auto before = m_camera.changedValues();
    ASSERT_TRUE(planFeatures(m_camera,
        fileOf("Width\t320\nReverseX\t0\nTriggerSelector\tLineStart\nTriggerMode\tOn\nNothing\t1"),
        m_report));
    EXPECT_EQ(
        describeReport(m_report), "Width:changed ReverseX:unchanged TriggerMode:changed Nothing:failed");
    EXPECT_EQ(m_report.changes[0].before + ' ' + m_report.changes[0].setting.value, "640 320");
    EXPECT_EQ(m_camera.changedValues(), before);
    EXPECT_FALSE(m_report.isApplied);
}

TEST_F(FeatureLoaderTest, nothingIsLoadedWhileAStreamRuns)
{
    m_camera.feature("Width").rule = [](NodeState &state) { state.lockReason = LockReason::StreamRunning; };
    load("ReverseX\t1");
    EXPECT_EQ(m_result.code, CvxErrorNotWritable);
    EXPECT_NE(m_result.text.find("stream"), std::string::npos);
    EXPECT_TRUE(m_camera.writes.empty());
}

TEST_F(FeatureLoaderTest, commandsSurroundTheWrites)
{
    for (const char *const name : {"DeviceRegistersStreamingStart", "DeviceRegistersStreamingEnd",
             "DeviceFeaturePersistenceStart", "DeviceFeaturePersistenceEnd"})
        m_camera.addCommand(name);
    load("Width\t320");
    EXPECT_EQ(m_camera.writes,
        (std::vector<std::string>{"DeviceRegistersStreamingStart", "Width", "DeviceRegistersStreamingEnd"}));
}

TEST_F(FeatureLoaderTest, allOrNothingRestoresWhatTheFailedLoadChanged)
{
    // The camera changes a feature that the file does not contain, and the limits forbid the file's order.
    m_camera.add("Binning", std::int64_t(1)).onWrite = [this](NodeValue &value) {
        if (value != NodeValue(std::int64_t(1)))
            m_camera.set("ReverseX", true);
    };
    m_camera.set("OffsetX", std::int64_t(640));
    m_camera.feature("ExposureTime").state.maximum = 20000.0;
    const auto before = m_camera.changedValues();
    EXPECT_EQ(loadAll("OffsetX\t0\nWidth\t1280\nBinning\t2\nTriggerSelector\tLineStart\nTriggerMode\tOn\n"
                      "ExposureTime\t30000"),
        "OffsetX:changed Width:changed Binning:changed TriggerMode:changed ExposureTime:failed");
    EXPECT_TRUE(m_report.isApplied);
    EXPECT_TRUE(m_report.isRestored);
    EXPECT_TRUE(m_report.notes.empty());
    EXPECT_EQ(m_camera.changedValues(), before);
}

TEST_F(FeatureLoaderTest, allOrNothingRestoresWhatWasLockedBefore)
{
    m_camera.set("ExposureAuto", std::string("Continuous"));
    const auto before = m_camera.changedValues();
    loadAll("ExposureAuto\tOff\nExposureTime\t500\nWidth\t99999");
    EXPECT_TRUE(m_report.isRestored);
    EXPECT_TRUE(m_report.notes.empty());
    EXPECT_EQ(m_camera.changedValues(), before);
}

TEST_F(FeatureLoaderTest, allOrNothingRefusesAHopelessFileBeforeTheFirstWrite)
{
    for (const char *const lines : {"Width\t320\nNothing\t1", "Width\t320\nReverseX",
             "Width\t320\nReverseX\tx", "Width\t320\nDeviceSerialNumber\t5"}) {
        loadAll(lines);
        EXPECT_TRUE(m_result);
        EXPECT_FALSE(m_report.isApplied) << lines;
        EXPECT_TRUE(m_camera.writes.empty()) << lines;
    }
    EXPECT_EQ(loadAll("Width\t320"), "Width:changed");
    EXPECT_FALSE(m_report.isRestored);
}

TEST_F(FeatureLoaderTest, valuesThatCannotBeRestoredAreNamed)
{
    m_camera.feature("ReverseX").onWrite
        = [this](NodeValue &) { m_camera.feature("ReverseX").state.lockReason = LockReason::LockedByNode; };
    loadAll("ReverseX\t1\nOffsetX\t5000");
    ASSERT_EQ(m_report.notes.size(), 1U);
    EXPECT_EQ(m_report.notes[0].name, "ReverseX");
}

TEST_F(FeatureLoaderTest, cancelledAllOrNothingRestores)
{
    const auto before = m_camera.changedValues();
    bool isEverApplied = false;
    for (unsigned count = 0; count < 100; ++count) {
        unsigned calls = 0;
        ASSERT_TRUE(loadAllFeatures(m_camera, fileOf("Width\t320\nReverseX\t1\nOffsetX\t8"), m_report,
            [&](std::size_t, std::size_t) { return calls++ < count; }));
        isEverApplied = isEverApplied || m_report.isApplied;
        if (!m_report.isCancelled)
            break;
        EXPECT_TRUE(count > 0 || m_report.changes.empty());
        EXPECT_EQ(m_camera.changedValues(), before) << count;
    }
    EXPECT_TRUE(isEverApplied);
    EXPECT_FALSE(m_report.isCancelled);
}

TEST_F(FeatureLoaderTest, lossAtAnyCallIsReturned)
{
    const FeatureFile file
        = fileOf("Width\t1000\nOffsetX\t280\nTriggerSelector\tLineStart\nTriggerMode\tOn\nReverseX\t1");
    ASSERT_TRUE(loadAllFeatures(m_camera, file, m_report));
    const std::size_t callCount = m_camera.callCount;
    for (std::size_t calls = 0; calls < callCount; ++calls) {
        TestCamera camera;
        camera.callsUntilLoss = calls;
        EXPECT_EQ(loadAllFeatures(camera, file, m_report).code, CvxErrorDeviceLost) << calls;
    }
}
