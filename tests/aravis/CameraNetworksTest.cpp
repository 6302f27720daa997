// Several cameras at several network cards. To be run by with-camera-networks, which sets them up.

#include "tests/aravis/CameraLister.h"

#include <gtest/gtest.h>

TEST(CameraNetworks, EachCameraIsListedAtItsCard)
{
    CameraLister lister(UNIVERSAL_GEV_FILE);
    const ListedCameras expected{{"10.77.1.1", "CARD1"}, {"10.77.2.1", "CARD2"}, {"elsewhere", "STRAY"}};
    EXPECT_EQ(lister.awaitCameras(expected), expected);
}
