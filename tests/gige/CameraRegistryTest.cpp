// These tests check which cameras are kept under which IDs, when a silent camera is asked again, and when it
// is removed.

#include "sdk/gige/CameraRegistry.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Ids = std::vector<std::string>;

CameraData cameraAt(std::uint8_t mac, std::uint32_t address, const std::string &serial = "S")
{
    CameraData camera;
    camera.mac = {0, 0, 0, 0, 0, mac};
    camera.address = address;
    camera.vendor = "Orvelle";
    camera.model = "Kx200";
    camera.serial = serial;
    return camera;
}

} // namespace

class CameraRegistryTest : public testing::Test
{
protected:
    CameraRegistryTest() { startSearch(); }

    /// Starts a search two seconds after the previous one.
    void startSearch()
    {
        start += 2s;
        registry.startSearch(start);
    }

    /// Returns the cameras as "interface ID".
    Ids ids() const
    {
        Ids result;
        for (const auto &camera : registry.cameras())
            result.push_back(std::to_string(camera.interfaceIndex) + ' ' + camera.id);
        return result;
    }

    CameraRegistry registry;
    CameraRegistry::Time start;
};

TEST_F(CameraRegistryTest, answerAddsOrChangesACamera)
{
    EXPECT_TRUE(registry.addAnswer(1, cameraAt(1, 10)));
    EXPECT_FALSE(registry.addAnswer(1, cameraAt(1, 10))) << "nothing is new";
    CameraData renamed = cameraAt(1, 10);
    renamed.userName = "Test bench";
    EXPECT_TRUE(registry.addAnswer(1, renamed));
    ASSERT_EQ(registry.cameras().size(), 1U);
    EXPECT_EQ(registry.cameras().front().data, renamed);
}

TEST_F(CameraRegistryTest, cameraIsKeptForEachNetworkInterface)
{
    EXPECT_TRUE(registry.addAnswer(2, cameraAt(1, 10)));
    EXPECT_TRUE(registry.addAnswer(1, cameraAt(1, 10)));
    EXPECT_EQ(ids(), (Ids{"2 00:00:00:00:00:01", "1 00:00:00:00:00:01"}));
    EXPECT_TRUE(registry.removeInterface(1));
    EXPECT_FALSE(registry.removeInterface(1));
    EXPECT_EQ(ids(), Ids{"2 00:00:00:00:00:01"});
}

TEST_F(CameraRegistryTest, cameraWithoutMacAddressIsIdentifiedByItsSerialNumber)
{
    registry.addAnswer(1, cameraAt(0, 10, "A"));
    registry.addAnswer(1, cameraAt(0, 11, "B"));
    EXPECT_EQ(ids(), (Ids{"1 Orvelle-Kx200-A", "1 Orvelle-Kx200-B"}));
}

TEST_F(CameraRegistryTest, cameraKeepsItsIdIfItsAddressChanges)
{
    registry.addAnswer(1, cameraAt(1, 10));
    startSearch();
    EXPECT_TRUE(registry.addAnswer(1, cameraAt(1, 20)));
    EXPECT_EQ(ids(), Ids{"1 00:00:00:00:00:01"});
}

TEST_F(CameraRegistryTest, camerasWithTheSameMacAddressAreDistinguishedByTheirAddresses)
{
    const Ids expected{"1 00:00:00:00:00:01", "1 00:00:00:00:00:01@0.0.0.20", "2 00:00:00:00:00:01@0.0.0.30"};
    registry.addAnswer(1, cameraAt(1, 10));
    registry.addAnswer(1, cameraAt(1, 20));
    registry.addAnswer(2, cameraAt(1, 30));
    EXPECT_EQ(ids(), expected);
    startSearch();
    for (const auto &[interface, address] : {std::pair(2, 30), {1, 20}, {1, 10}})
        EXPECT_FALSE(registry.addAnswer(interface, cameraAt(1, address))) << "in another order";
    EXPECT_EQ(ids(), expected);
}

TEST_F(CameraRegistryTest, idWithAnAddressBelongsToThisAddress)
{
    registry.addAnswer(3, cameraAt(1, 10));
    registry.addAnswer(1, cameraAt(1, 20));
    registry.removeInterface(3);
    registry.addAnswer(2, cameraAt(1, 20));
    EXPECT_EQ(ids(), (Ids{"1 00:00:00:00:00:01@0.0.0.20", "2 00:00:00:00:00:01@0.0.0.20"}))
        << "the same camera on another network interface";
    startSearch();
    registry.addAnswer(1, cameraAt(1, 30));
    EXPECT_EQ(ids().back(), "1 00:00:00:00:00:01@0.0.0.30") << "another camera";
}

TEST_F(CameraRegistryTest, camerasThatReportTheSameAddressAreAllKept)
{
    registry.addAnswer(1, cameraAt(1, 10));
    registry.addAnswer(1, cameraAt(2, 10));
    EXPECT_EQ(ids(), (Ids{"1 00:00:00:00:00:01", "1 00:00:00:00:00:02"}));
}

TEST_F(CameraRegistryTest, silentCameraIsAskedAgainAfterASecond)
{
    registry.addAnswer(1, cameraAt(1, 10));
    EXPECT_EQ(registry.nextDeadline(), CameraRegistry::Time::max());
    startSearch();
    for (const auto delay : {1000ms, 1300ms, 1600ms}) {
        EXPECT_EQ(registry.nextDeadline(), start + delay);
        EXPECT_TRUE(registry.takeDueRequests(start + delay - 1ms).empty());
        const auto requests = registry.takeDueRequests(start + delay);
        ASSERT_EQ(requests.size(), 1U);
        EXPECT_EQ(requests.front().data.address, 10U);
    }
    EXPECT_EQ(registry.nextDeadline(), CameraRegistry::Time::max());
    EXPECT_FALSE(registry.removeSilent(start + 1999ms)) << "the camera has missed one search only";
}

TEST_F(CameraRegistryTest, cameraIsRemovedAfterTwoMissedSearches)
{
    registry.addAnswer(1, cameraAt(1, 10));
    startSearch();
    startSearch();
    for (const auto delay : {100ms, 200ms, 300ms}) {
        EXPECT_EQ(registry.nextDeadline(), start + delay);
        EXPECT_FALSE(registry.removeSilent(start + delay));
        EXPECT_EQ(registry.takeDueRequests(start + delay).size(), 1U);
    }
    EXPECT_EQ(registry.nextDeadline(), start + 350ms);
    EXPECT_FALSE(registry.removeSilent(start + 349ms));
    EXPECT_TRUE(registry.removeSilent(start + 350ms));
    EXPECT_EQ(ids(), Ids{});
}

TEST_F(CameraRegistryTest, cameraIsAskedAgainBeforeItsRemovalEvenIfTheProcessWasStopped)
{
    registry.addAnswer(1, cameraAt(1, 10));
    startSearch();
    startSearch();
    for (int request = 0; request < 3; ++request) {
        EXPECT_FALSE(registry.removeSilent(start + 1min));
        EXPECT_EQ(registry.takeDueRequests(start + 1min + request * 100ms).size(), 1U);
    }
    EXPECT_FALSE(registry.removeSilent(start + 1min + 249ms));
    EXPECT_TRUE(registry.removeSilent(start + 1min + 250ms));
}

TEST_F(CameraRegistryTest, anyAnswerKeepsTheCamera)
{
    registry.addAnswer(1, cameraAt(1, 10));
    startSearch();
    startSearch();
    registry.takeDueRequests(start + 100ms);
    registry.addAnswer(1, cameraAt(1, 10));
    EXPECT_EQ(registry.nextDeadline(), CameraRegistry::Time::max());
    startSearch();
    EXPECT_EQ(registry.nextDeadline(), start + 1000ms) << "missed searches are counted from the last answer";
}

TEST_F(CameraRegistryTest, numberOfCamerasIsLimitedForEachNetworkInterface)
{
    for (std::uint32_t i = 0; i < CameraRegistry::maxCameras; ++i)
        EXPECT_TRUE(registry.addAnswer(1, cameraAt(0, i, std::to_string(i))));
    EXPECT_FALSE(registry.addAnswer(1, cameraAt(1, 1)));
    EXPECT_EQ(registry.cameras().size(), CameraRegistry::maxCameras);
    EXPECT_TRUE(registry.addAnswer(2, cameraAt(1, 1)));
}
