#include "sdk/names/CameraMatch.h"

#include <gtest/gtest.h>

namespace {

using Indexes = std::vector<std::size_t>;

const std::vector<CameraNames> cameras{
    {"CAM-1", "a.cti/net/CAM-1", "Kx200", "24030117", "Orvelle Kx200", "Conveyor top"},
    {"CAM-12", "a.cti/net/CAM-12", "Kx200 Pro", "2403", "Orvelle Kx200 Pro", ""},
    {"CAM-3", "b.cti/usb/CAM-3", "Ilvo", "K1", "Ilvo (K1)", "Conveyor side"},
};

struct Choice
{
    const char *text;
    Indexes expected;
};

class CameraMatchTest : public testing::TestWithParam<Choice>
{ };

} // namespace

TEST_P(CameraMatchTest, exactNamesWinOverParts)
{
    EXPECT_EQ(matchCameras(cameras, GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Names, CameraMatchTest,
    testing::Values(Choice{"CAM-1", {0}}, // Also a part of another ID.
        Choice{"2403", {1}}, // Also a part of another serial number.
        Choice{"24030", {0}}, Choice{"cam-3", {2}}, Choice{"b.cti/usb/CAM-3", {2}},
        Choice{"conveyor TOP", {0}}, Choice{"Conveyor", {0, 2}}, Choice{"kx200", {0, 1}}, Choice{"Pro", {1}},
        Choice{"net/", {0, 1}}, Choice{"none", {}}));
