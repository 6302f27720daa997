// USB3 Vision where there is a camera: Aravis's fake one, linked in as what Aravis finds at USB.

#include "sdk/aravis/Usb3VisionSource.h"

#include <gtest/gtest.h>

ArvInterface *arv_uv_interface_get_instance()
{
    return arv_fake_interface_get_instance();
}

TEST(Usb3VisionSource, ListsCamerasAtTheUsbHost)
{
    Usb3VisionSource source;
    ASSERT_EQ(source.updateInterfaces().size(), 1U);
    const auto cameras = source.updateDevices(source.updateInterfaces().front().id);
    ASSERT_EQ(cameras.size(), 1U);
    EXPECT_EQ(cameras.front().vendor, "Aravis");
    EXPECT_EQ(cameras.front().model, "Fake");
    EXPECT_EQ(cameras.front().tlType, "U3V");
    EXPECT_FALSE(cameras.front().id.empty());
}

TEST(Usb3VisionSource, ListsNoCamerasAnywhereElse)
{
    EXPECT_TRUE(Usb3VisionSource().updateDevices("another").empty());
}
