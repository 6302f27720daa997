#include "sdk/features/DeviceCalls.h"
#include "sdk/features/CallSize.h"
#include "sdk/features/FeatureReader.h"
#include "tests/features/TestCamera.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace CvxCPP;

namespace {

/// A camera that records how many features each call reads, fails to say when a command is done, and refuses
/// a value.
class CountingCamera : public TestCamera
{
public:
    CvxResult ReadStates(const std::vector<std::string> &names, std::vector<NodeState> &states) override
    {
        sizes.push_back(names.size());
        if (names.front() == "DeviceRegistersStreamingStart")
            return {CvxErrorDevice, "The register cannot be read."};
        return ScriptedDevice::ReadStates(names, states);
    }

    CvxResult Write(const std::string &name, const NodeValue &value) override
    {
        if (value != NodeValue("Refused"))
            return ScriptedDevice::Write(name, value);
        ++refusedCount;
        return {CvxErrorDevice, "The camera refuses the value."};
    }

    FeatureDirectory directory() const
    {
        std::vector<NodeInfo> nodes;
        EXPECT_TRUE(GetNodes(nodes));
        return FeatureDirectory(std::move(nodes));
    }

    std::vector<std::size_t> sizes;
    std::size_t refusedCount = 0;
};

} // namespace

TEST(CallSizeTest, growsAndStaysBelowHalfOfTheTime)
{
    using std::chrono::milliseconds;
    struct Row
    {
        int count;
        int duration;
        int next;
    };
    const Row fast[] = {{2, 0, 4}, {4, 1, 8}, {8, 1, 16}, {16, 1, 25}, {25, 1, 25}, {3, 1, 25}};
    const Row slow[] = {{2, 400, 4}, {4, 800, 8}, {8, 1600, 12}, {12, 12000, 2}, {2, 2, 2}};
    const Row verySlow[] = {{2, 9000, 1}, {1, 1, 1}};
    for (const auto &[first, last] : {std::pair(std::begin(fast), std::end(fast)),
             {std::begin(slow), std::end(slow)}, {std::begin(verySlow), std::end(verySlow)}}) {
        CallSize size;
        EXPECT_EQ(size.next(), 2);
        for (const Row *row = first; row != last; ++row) {
            size.wasRead(row->count, milliseconds(row->duration));
            EXPECT_EQ(size.next(), row->next) << row->count << " features in " << row->duration << " ms";
        }
    }
}

TEST(DeviceCallsTest, manyStatesAreReadWithSeveralCalls)
{
    CountingCamera camera;
    const std::vector<std::string> names(60, "Width");
    std::vector<NodeState> states;
    ASSERT_TRUE(readStates(camera, names, states));
    EXPECT_EQ(states.size(), 60U);
    EXPECT_EQ(camera.sizes.front(), 2U);
    EXPECT_LE(*std::max_element(camera.sizes.begin(), camera.sizes.end()), 25U);
}

TEST(DeviceCallsTest, oneCommandAnnouncesThatFeaturesFollow)
{
    const auto commands = {"DeviceRegistersStreamingStart", "DeviceFeaturePersistenceStart"};
    CountingCamera camera;
    for (const char *const command : commands)
        camera.addCommand(command);
    ASSERT_TRUE(announce(camera, camera.directory(), commands)); // Nobody knows when it is done.
    EXPECT_EQ(camera.writes, std::vector<std::string>{"DeviceRegistersStreamingStart"});
    camera.feature("DeviceRegistersStreamingStart").state.lockReason = LockReason::LockedByNode;
    ASSERT_TRUE(announce(camera, camera.directory(), commands));
    EXPECT_EQ(camera.writes.back(), "DeviceFeaturePersistenceStart");
    EXPECT_EQ(camera.writes.size(), 2U);
}

TEST(FeatureReaderTest, eachReaderContinuesWhereThePreviousOneHasStopped)
{
    CountingCamera camera;
    camera.feature("LUTSelector").state.availableEntries = {"Red", "Refused", "Green"};
    const FeatureDirectory directory = camera.directory();
    using Combination = std::vector<SelectorSetting>;
    std::vector<Combination> finished;
    std::size_t readingCount = 0;
    bool isComplete = false;
    for (int call = 0; call < 10 && !isComplete; ++call) {
        const FeatureReader *running = nullptr;
        const FeatureProgress progress
            = [&running](std::size_t, std::size_t) { return running->finished().empty(); };
        FeatureReader reader(camera, directory, progress);
        running = &reader;
        reader.setSkip([&finished](const Combination &selectors) {
            return std::find(finished.begin(), finished.end(), selectors) != finished.end();
        });
        ASSERT_TRUE(reader.read({"LUTValue"}));
        isComplete = !reader.isCancelled();
        readingCount += reader.readings().size();
        finished.insert(finished.end(), reader.finished().begin(), reader.finished().end());
    }
    EXPECT_TRUE(isComplete);
    EXPECT_EQ(readingCount, 4U);
    EXPECT_EQ(camera.refusedCount, 1U);
    // Red is the initial value, which each of the two readers for Green restores.
    EXPECT_EQ(std::count(camera.writes.begin(), camera.writes.end(), "LUTSelector"), 4);
}
