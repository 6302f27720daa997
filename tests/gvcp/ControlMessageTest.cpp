// These tests check commands and answers that are not part of the search, and the list of seen cameras.

#include "sdk/gvcp/CameraSearch.h"
#include "sdk/gvcp/ControlAnswer.h"
#include "sdk/gvcp/ForceAddress.h"

#include <gtest/gtest.h>

TEST(ForceAddress, commandNamesTheCameraAndTheAddress)
{
    MessageBytes expected(64);
    const auto put = [&](std::size_t position, std::initializer_list<std::uint8_t> bytes) {
        std::copy(bytes.begin(), bytes.end(), expected.begin() + static_cast<std::ptrdiff_t>(position));
    };
    put(0, {0x42, 0x11, 0x00, 0x04, 0x00, 0x38, 0xAB, 0xCD});
    put(8 + 2, {0x00, 0x11, 0x1C, 0xF0, 0x12, 0x34});
    put(8 + 20, {10, 77, 1, 20});
    put(8 + 36, {255, 255, 255, 0});
    put(8 + 52, {10, 77, 1, 254});
    EXPECT_EQ(forceAddressCommand(
                  {0x00, 0x11, 0x1C, 0xF0, 0x12, 0x34}, {0x0A4D0114, 0xFFFFFF00, 0x0A4D01FE}, 0xABCD),
        expected);
}

TEST(ControlAnswer, anyDatagramIsParsed)
{
    for (std::size_t size = 0; size < 8; ++size)
        EXPECT_FALSE(parseAnswer(MessageBytes(size))) << size << " bytes";
    const auto parsed = parseAnswer({0x80, 0x06, 0x00, 0x05, 0xFF, 0xFF, 0xAB, 0xCD, 7});
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->code, 5);
    EXPECT_EQ(parsed->requestId, 0xABCD);
    EXPECT_EQ(parsed->answer.data, MessageBytes{7}) << "the stated length does not count";
    EXPECT_EQ(statusText(parsed->answer.status), "another program controls the camera");
    EXPECT_EQ(statusText(0x8FFF), "the camera reports the status 0x8FFF");
}

TEST(CameraSearch, cameraIsPresentOnceWhereItCanBeReached)
{
    const auto seen = [](std::uint8_t mac, unsigned index, bool isInSubnet) {
        SeenCamera camera;
        camera.camera.mac = {2, 0, 0, 0, 0, mac};
        camera.networkInterface.index = index;
        camera.isInSubnet = isInSubnet;
        return camera;
    };
    const auto cameras = oncePerCamera({seen(1, 2, false), seen(2, 2, true), seen(1, 3, true),
        seen(2, 3, true), seen(3, 2, false), seen(3, 3, false)});
    std::vector<std::pair<int, unsigned>> found;
    for (const SeenCamera &camera : cameras)
        found.emplace_back(camera.camera.mac[5], camera.networkInterface.index);
    EXPECT_EQ(found, (std::vector<std::pair<int, unsigned>>{{1, 3}, {2, 2}, {3, 2}}));
}
