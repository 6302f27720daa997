// These tests check which interface lists a camera, and which changes of the lists a consumer is told about.

#include "sdk/gige/CameraPlacement.h"
#include "sdk/gige/ReportedLists.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t mask = 0xFFFFFF00;
const InterfaceAddress one{1, "one", 0x0A000101, mask, true, true}; // 10.0.1.1
const InterfaceAddress two{2, "two", 0x0A000201, mask, true, true}; // 10.0.2.1
const InterfaceAddress twoSecond{2, "two", 0x0A000301, mask, true, true}; // 10.0.3.1

CameraRegistry::Camera cameraOn(unsigned interfaceIndex, const std::string &id, std::uint32_t address)
{
    CameraRegistry::Camera camera{interfaceIndex, id, {}};
    camera.data.address = address;
    return camera;
}

/// Returns the lists as "interface: camera camera", with a question mark after a camera that is not
/// reachable.
std::vector<std::string> described(const std::vector<InterfaceList> &lists)
{
    std::vector<std::string> result;
    for (const InterfaceList &list : lists) {
        std::string line = list.id + ':';
        for (const ListedCamera &camera : list.cameras)
            line += ' ' + camera.id + (camera.isReachable ? "" : "?");
        result.push_back(line);
    }
    return result;
}

using Lines = std::vector<std::string>;

} // namespace

TEST(CameraPlacement, cameraIsListedAtTheAddressOfItsSubnet)
{
    CameraPlacement placement;
    const auto lists = placement.place({one, two, twoSecond},
        {cameraOn(2, "c", 0x0A000307), cameraOn(2, "b", 0x0A000207), cameraOn(1, "a", 0x0A000107)}, true);
    EXPECT_EQ(described(lists), (Lines{"10.0.1.1: a", "10.0.2.1: b", "10.0.3.1: c"}));
    EXPECT_EQ(lists.back().networkInterface, "two");
}

TEST(CameraPlacement, cameraOfAnotherSubnetIsListedAtTheFirstAddressOfItsNetworkInterface)
{
    CameraPlacement placement;
    const auto lists = placement.place({one, two, twoSecond},
        {cameraOn(2, "stray", 0xC0A86305), cameraOn(2, "wrong port", 0x0A000107), cameraOn(3, "gone", 1)},
        true);
    EXPECT_EQ(described(lists), (Lines{"10.0.1.1:", "10.0.2.1: stray? wrong port?", "10.0.3.1:"}));
}

TEST(CameraPlacement, cameraOnTwoNetworkInterfacesIsListedOnce)
{
    CameraPlacement placement;
    const std::pair<std::uint32_t, Lines> expected[] = {
        {0x0A000107, {"10.0.1.1: a", "10.0.2.1:"}},
        {0x0A000207, {"10.0.1.1:", "10.0.2.1: a"}},
    };
    for (const auto &[address, lines] : expected) {
        EXPECT_EQ(described(placement.place(
                      {one, two}, {cameraOn(1, "a", address), cameraOn(2, "a", address)}, true)),
            lines);
        EXPECT_EQ(described(placement.place(
                      {one, two}, {cameraOn(2, "a", address), cameraOn(1, "a", address)}, true)),
            lines);
    }
}

TEST(CameraPlacement, cameraStaysWhereItWasListedIfNoInterfaceIsBetter)
{
    const auto onOne = cameraOn(1, "a", 0xC0A86305), onTwo = cameraOn(2, "a", 0xC0A86305);
    EXPECT_EQ(described(CameraPlacement().place({two, one}, {onOne, onTwo}, true)),
        (Lines{"10.0.2.1: a?", "10.0.1.1:"}))
        << "the first interface, because the camera was not listed before";
    CameraPlacement placement;
    placement.place({one, two}, {onTwo}, false);
    EXPECT_EQ(
        described(placement.place({one, two}, {onOne, onTwo}, false)), (Lines{"10.0.1.1: a?", "10.0.2.1:"}))
        << "an incomplete list is not remembered";
    placement.place({one, two}, {onTwo}, true);
    EXPECT_EQ(
        described(placement.place({one, two}, {onOne, onTwo}, true)), (Lines{"10.0.1.1:", "10.0.2.1: a?"}));
    EXPECT_EQ(described(placement.place({one, two}, {onOne}, true)), (Lines{"10.0.1.1: a?", "10.0.2.1:"}));
}

TEST(CameraPlacement, networkInterfacesWithTheSameAddressAreOneInterface)
{
    CameraPlacement placement;
    InterfaceAddress twin = one;
    twin.index = 3;
    twin.name = "twin";
    EXPECT_EQ(described(placement.place(
                  {one, twin}, {cameraOn(1, "a", 0x0A000107), cameraOn(3, "b", 0x0A000108)}, true)),
        Lines{"10.0.1.1: a b"});
}

class ReportedListsTest : public testing::Test
{
protected:
    std::vector<InterfaceList> lists{{"10.0.1.1", "one", {{"a", {}, true}}}, {"10.0.2.1", "two", {}}};
    ReportedLists reported;
};

TEST_F(ReportedListsTest, changeIsReportedOnce)
{
    EXPECT_TRUE(reported.takeChange(lists));
    EXPECT_FALSE(reported.takeChange(lists));
    lists[1].cameras.push_back({"b", {}, true});
    EXPECT_TRUE(reported.takeChange(lists));
    EXPECT_FALSE(reported.takeChange(lists));
    lists[1].cameras[0].data.userName = "Test bench";
    EXPECT_TRUE(reported.takeChange(lists));
    lists[1].cameras[0].isReachable = false;
    EXPECT_TRUE(reported.takeChange(lists));
    lists.pop_back();
    EXPECT_TRUE(reported.takeChange(lists));
    EXPECT_FALSE(reported.takeChange(lists));
}

TEST_F(ReportedListsTest, listsThatTheConsumerHasGotAreNotReported)
{
    reported.noteInterfaces(lists);
    reported.noteCameras(lists[0]);
    EXPECT_FALSE(reported.takeChange(lists)) << "the other interface has no camera";
    lists[0].cameras.clear();
    lists[1].cameras.push_back({"a", {}, true});
    reported.noteCameras(lists[1]);
    EXPECT_TRUE(reported.takeChange(lists)) << "the consumer has not got the first list";
}
