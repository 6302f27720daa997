// Several cameras at several network cards. To be run by with-camera-networks, which sets them up.

#include "tests/aravis/CameraLister.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

TEST(CameraNetworks, EachCameraIsListedAtItsCard)
{
    CameraLister lister(UNIVERSAL_GEV_FILE);
    const ListedCameras expected{{"10.77.1.1", "CARD1"}, {"10.77.2.1", "CARD2"}, {"elsewhere", "STRAY"}};
    EXPECT_EQ(lister.awaitCameras(expected), expected);
}

TEST(CameraNetworks, ACameraGoesWithItsCard)
{
    CameraLister lister(UNIVERSAL_GEV_FILE);
    const ListedCameras all{{"10.77.1.1", "CARD1"}, {"10.77.2.1", "CARD2"}, {"elsewhere", "STRAY"}};
    ASSERT_EQ(lister.awaitCameras(all), all);
    ASSERT_EQ(std::system("ip link set card1 down"), 0);
    const ListedCameras justAfter = lister.cameras(); // The search has just ended, so there is no other.
    const ListedCamera elsewhere{"elsewhere", "CARD1"};
    EXPECT_EQ(std::count(justAfter.begin(), justAfter.end(), elsewhere), 0);
    const ListedCameras left{{"10.77.2.1", "CARD2"}, {"elsewhere", "STRAY"}};
    EXPECT_EQ(lister.searchedCameras(), left);
}
