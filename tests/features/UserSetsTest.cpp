#include "sdk/features/UserSets.h"
#include "tests/features/ScriptedDevice.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

/// A camera with two user sets whose commands need three reads until they are done.
class UserSetsTest : public testing::Test
{
protected:
    UserSetsTest()
    {
        m_camera.addEntries("UserSetSelector", {"Default", "UserSet1"});
        m_camera.addCommand("UserSetLoad").rule
            = [this](NodeState &state) { state.isCommandDone = ++m_reads >= 3; };
        m_camera.addEntries("UserSetDefaultSelector", {"Default", "UserSet1"});
    }

    std::string selected() { return std::get<std::string>(m_camera.value("UserSetSelector")); }

    ScriptedDevice m_camera;
    int m_reads = 0;
};

} // namespace

TEST_F(UserSetsTest, olderCamerasHaveAnotherNameForTheDefault)
{
    UserSets userSets;
    ASSERT_TRUE(readUserSets(m_camera, userSets));
    ASSERT_EQ(userSets.sets.size(), 2U);
    EXPECT_EQ(userSets.sets[1].name, "UserSet1");
    EXPECT_EQ(userSets.sets[1].load.name, "UserSetLoad");
    EXPECT_EQ(userSets.sets[1].save.name, "");
    EXPECT_EQ(userSets.defaultFeature, "UserSetDefaultSelector");
    EXPECT_EQ(selected(), "Default");
}

TEST_F(UserSetsTest, commandIsAwaitedBeforeTheSelectorIsRestored)
{
    std::string atTheEnd;
    m_camera.feature("UserSetLoad").rule = [this, &atTheEnd](NodeState &state) {
        state.isCommandDone = ++m_reads >= 4; // The first one checks the lock.
        atTheEnd = selected();
    };
    ASSERT_TRUE(executeForUserSet(m_camera, "UserSet1", "UserSetLoad"));
    EXPECT_EQ(m_reads, 4);
    EXPECT_EQ(atTheEnd, "UserSet1");
    EXPECT_EQ(selected(), "Default");
}

TEST_F(UserSetsTest, slowCommandDoesNotCountAsALostCamera)
{
    const CvxResult result = executeAndWait(m_camera, "UserSetLoad", std::chrono::seconds(0));
    EXPECT_EQ(result.code, CvxErrorDevice);
    EXPECT_FALSE(isDeviceGone(result));
}

TEST_F(UserSetsTest, refusalAndLossAreReported)
{
    m_camera.feature("UserSetLoad").rule
        = [](NodeState &state) { state.lockReason = LockReason::LockedByNode; };
    EXPECT_EQ(executeForUserSet(m_camera, "UserSet1", "UserSetLoad").code, CvxErrorNotWritable);
    EXPECT_EQ(selected(), "Default");
    EXPECT_EQ(executeForUserSet(m_camera, "UserSet7", "UserSetLoad").code, CvxErrorOutOfRange);
    m_camera.callsUntilLoss = m_camera.callCount + 2;
    UserSets userSets;
    EXPECT_EQ(readUserSets(m_camera, userSets).code, CvxErrorDeviceLost);
}
