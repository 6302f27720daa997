// These tests check which cameras are kept under which IDs, when a silent camera is asked again, and when it
// is removed.

#include "sdk/gige/CameraRegistry.h"

#include <algorithm>
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

std::uint16_t next(std::uint16_t request)
{
    return request == 0xFFFF ? 1 : request + 1;
}

/// Returns "interface/address ID". The MAC address is "M", and addresses are numbers.
std::string shortened(const CameraRegistry::Camera &camera)
{
    std::string id = camera.id;
    for (const auto &[text, replacement] :
        {std::pair<std::string, std::string>{"00:00:00:00:00:01", "M"}, {"@0.0.0.", "@"}}) {
        for (std::size_t at = id.find(text); at != std::string::npos; at = id.find(text))
            id.replace(at, text.size(), replacement);
    }
    return std::to_string(camera.interfaceIndex) + '/' + std::to_string(camera.data.address) + ' ' + id;
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
        request = next(request);
    }

    /// Adds an answer to the last request.
    bool answer(unsigned interfaceIndex, const CameraData &camera)
    {
        return registry.addAnswer(interfaceIndex, request, camera);
    }

    /// Runs a search without answers, and starts the next one.
    void missASearch()
    {
        startSearch();
        for (const auto delay : {1000ms, 1300ms, 1600ms})
            EXPECT_EQ(registry.takeDueRequests(start + delay).size(), 1U);
        startSearch();
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
    std::uint16_t request = 0xFFFE; // The IDs start again at 1 during each test.
};

TEST_F(CameraRegistryTest, answerAddsOrChangesACamera)
{
    EXPECT_TRUE(answer(1, cameraAt(1, 10)));
    EXPECT_FALSE(answer(1, cameraAt(1, 10))) << "nothing is new";
    CameraData renamed = cameraAt(1, 10);
    renamed.userName = "Test bench";
    EXPECT_TRUE(answer(1, renamed));
    ASSERT_EQ(registry.cameras().size(), 1U);
    EXPECT_EQ(registry.cameras().front().data, renamed);
}

TEST_F(CameraRegistryTest, cameraIsKeptForEachNetworkInterface)
{
    EXPECT_TRUE(answer(2, cameraAt(1, 10)));
    EXPECT_TRUE(answer(1, cameraAt(1, 10)));
    EXPECT_EQ(ids(), (Ids{"2 00:00:00:00:00:01", "1 00:00:00:00:00:01"}));
    EXPECT_TRUE(registry.removeInterface(1));
    EXPECT_FALSE(registry.removeInterface(1));
    EXPECT_EQ(ids(), Ids{"2 00:00:00:00:00:01"});
}

TEST_F(CameraRegistryTest, cameraWithoutMacAddressIsIdentifiedByItsSerialNumber)
{
    answer(1, cameraAt(0, 10, "A"));
    answer(1, cameraAt(0, 11, "B"));
    EXPECT_EQ(ids(), (Ids{"1 Orvelle-Kx200-A", "1 Orvelle-Kx200-B"}));
}

TEST_F(CameraRegistryTest, cameraThatMovesKeepsItsId)
{
    struct Row
    {
        std::vector<std::vector<std::pair<unsigned, std::uint32_t>>> answers; // To one request after another.
        Ids ids; // "interface/address ID"
    };
    const Row rows[] = {
        {{{{1, 10}}, {{1, 20}}}, {"1/20 M"}},
        {{{{1, 10}}, {{1, 20}}, {{1, 10}}}, {"1/10 M"}},
        {{{{1, 10}}, {{2, 20}}}, {"2/20 M"}},
        {{{{1, 10}}, {{2, 10}}}, {"1/10 M", "2/10 M"}},
        {{{{1, 10}, {2, 10}}, {{2, 20}, {1, 20}}}, {"1/20 M", "2/20 M"}},
        {{{{1, 10}, {1, 20}}, {{1, 10}, {1, 30}}}, {"1/10 M", "1/30 M@20"}},
        {{{{1, 10}, {1, 20}}, {{1, 30}, {1, 10}}}, {"1/10 M", "1/30 M@20"}},
        {{{{1, 10}, {1, 20}}, {{1, 10}}, {{1, 30}, {1, 10}}}, {"1/10 M", "1/30 M@20"}},
        {{{{1, 10}, {1, 20}}, {{1, 10}, {1, 30}}, {{1, 10}, {1, 30}, {1, 20}}},
            {"1/10 M", "1/30 M@20", "1/20 M@20@20"}},
        // A second camera that answers first does not take the ID of the first one.
        {{{{1, 10}}, {{1, 20}, {1, 10}}}, {"1/10 M", "1/20 M@20"}},
        {{{{1, 10}}, {{2, 20}, {1, 10}}}, {"1/10 M", "2/20 M@20"}},
        {{{{1, 10}, {1, 20}}, {{1, 30}, {1, 20}, {1, 10}}}, {"1/10 M", "1/20 M@20", "1/30 M@30"}},
    };
    for (const Row &row : rows) {
        CameraRegistry table;
        std::uint16_t id = 0xFFFE;
        for (const auto &places : row.answers) {
            id = next(id); // This ID belongs to a search that does not count missing answers.
            for (const auto &[interfaceIndex, address] : places)
                table.addAnswer(interfaceIndex, id, cameraAt(1, address));
        }
        Ids ids;
        for (const auto &camera : table.cameras())
            ids.push_back(shortened(camera));
        std::sort(ids.begin(), ids.end());
        Ids expected = row.ids;
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(ids, expected);
    }
}

TEST_F(CameraRegistryTest, lateAnswerToAnOlderRequestIsOfAnotherCamera)
{
    answer(1, cameraAt(1, 10));
    registry.addAnswer(1, request - 1, cameraAt(1, 20));
    EXPECT_EQ(ids(), (Ids{"1 00:00:00:00:00:01", "1 00:00:00:00:00:01@0.0.0.20"}));
}

TEST_F(CameraRegistryTest, camerasWithTheSameMacAddressAreDistinguishedByTheirAddresses)
{
    const Ids expected{"1 00:00:00:00:00:01", "1 00:00:00:00:00:01@0.0.0.20", "2 00:00:00:00:00:01@0.0.0.30"};
    answer(1, cameraAt(1, 10));
    answer(1, cameraAt(1, 20));
    answer(2, cameraAt(1, 30));
    EXPECT_EQ(ids(), expected);
    startSearch();
    for (const auto &[interface, address] : {std::pair(2, 30), {1, 20}, {1, 10}})
        EXPECT_FALSE(answer(interface, cameraAt(1, address))) << "in another order";
    EXPECT_EQ(ids(), expected);
}

TEST_F(CameraRegistryTest, camerasThatReportTheSameAddressAreAllKept)
{
    answer(1, cameraAt(1, 10));
    answer(1, cameraAt(2, 10));
    EXPECT_EQ(ids(), (Ids{"1 00:00:00:00:00:01", "1 00:00:00:00:00:02"}));
}

TEST_F(CameraRegistryTest, silentCameraIsAskedAgainAfterASecond)
{
    answer(1, cameraAt(1, 10));
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
    answer(1, cameraAt(1, 10));
    missASearch();
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
    answer(1, cameraAt(1, 10));
    missASearch();
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(registry.removeSilent(start + 1min));
        EXPECT_EQ(registry.takeDueRequests(start + 1min + i * 100ms).size(), 1U);
    }
    EXPECT_FALSE(registry.removeSilent(start + 1min + 249ms));
    EXPECT_TRUE(registry.removeSilent(start + 1min + 250ms));
}

TEST_F(CameraRegistryTest, searchIsMissedOnlyAfterAllRequests)
{
    answer(1, cameraAt(1, 10));
    startSearch();
    EXPECT_EQ(registry.takeDueRequests(start + 1900ms).size(), 1U) << "the process was stopped";
    startSearch();
    for (const auto delay : {200ms, 500ms})
        EXPECT_EQ(registry.takeDueRequests(start + delay).size(), 1U);
    EXPECT_EQ(registry.nextDeadline(), CameraRegistry::Time::max()) << "this is the first missed search";
    startSearch();
    EXPECT_EQ(registry.takeDueRequests(start + 1900ms).size(), 1U) << "stopped again";
    startSearch();
    EXPECT_FALSE(registry.removeSilent(start));
    for (const auto delay : {0ms, 100ms})
        EXPECT_EQ(registry.takeDueRequests(start + delay).size(), 1U);
    EXPECT_TRUE(registry.removeSilent(start + 150ms));
}

TEST_F(CameraRegistryTest, anyAnswerKeepsTheCamera)
{
    answer(1, cameraAt(1, 10));
    missASearch();
    registry.takeDueRequests(start + 100ms);
    answer(1, cameraAt(1, 10));
    EXPECT_EQ(registry.nextDeadline(), CameraRegistry::Time::max());
    startSearch();
    EXPECT_EQ(registry.nextDeadline(), start + 1000ms) << "missed searches are counted from the last answer";
}

TEST_F(CameraRegistryTest, numberOfCamerasIsLimitedForEachNetworkInterface)
{
    for (std::uint32_t i = 0; i < CameraRegistry::maxCameras; ++i)
        EXPECT_TRUE(answer(1, cameraAt(0, i, std::to_string(i))));
    EXPECT_FALSE(answer(1, cameraAt(1, 1)));
    EXPECT_EQ(registry.cameras().size(), CameraRegistry::maxCameras);
    EXPECT_TRUE(answer(2, cameraAt(1, 1)));
}
