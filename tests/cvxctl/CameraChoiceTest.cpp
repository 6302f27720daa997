#include "tools/cvxctl/CameraChoice.h"

#include <gtest/gtest.h>

namespace {

using Indexes = std::vector<std::size_t>;

const std::vector<CameraNames> cameras{
    {"CAM-1", "a.cti/net/CAM-1", "Kx200", "24030117", "Orvelle Kx200", "Conveyor top"},
    {"CAM-12", "a.cti/net/CAM-12", "Kx200 Pro", "2403", "Orvelle Kx200 Pro", ""},
    {"CAM-3", "b.cti/usb/CAM-3", "Ilvo", "K1", "Ilvo (K1)", "Conveyor side"},
};

struct Row
{
    const char *text;
    Indexes expected;
};

class CameraChoiceTest : public testing::TestWithParam<Row>
{ };

} // namespace

TEST_P(CameraChoiceTest, exactNamesWinOverParts)
{
    EXPECT_EQ(matchCameras(cameras, GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Names, CameraChoiceTest,
    testing::Values(Row{"CAM-1", {0}}, // Also a part of another ID.
        Row{"2403", {1}}, // Also a part of another serial number.
        Row{"24030", {0}}, Row{"cam-3", {2}}, Row{"b.cti/usb/CAM-3", {2}}, Row{"conveyor TOP", {0}},
        Row{"Conveyor", {0, 2}}, Row{"kx200", {0, 1}}, Row{"Pro", {1}}, Row{"net/", {0, 1}},
        Row{"none", {}}));
