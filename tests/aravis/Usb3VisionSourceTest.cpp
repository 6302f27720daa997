// These tests replace the USB search of Aravis by a function that finds Aravis's fake camera.

#include "sdk/aravis/Usb3VisionSource.h"

#include "tests/aravis/FakeCameraRegisters.h"
#include "tests/support/DescriptorLimit.h"

#include <algorithm>
#include <arv.h>
#include <gtest/gtest.h>

ArvInterface *arv_uv_interface_get_instance()
{
    return arv_fake_interface_get_instance();
}

TEST(Usb3VisionSource, camerasAreReportedOnTheUsbHost)
{
    Usb3VisionSource source;
    EXPECT_EQ(source.updateInterfaces(), (std::vector<InterfaceRecord>{{"usb", "USB host", "U3V"}}));
    EXPECT_TRUE(source.updateDevices("another", {}).empty());
    EXPECT_EQ(source.updateDevices("usb", {}),
        (std::vector<DeviceRecord>{{"Fake_1", "Aravis", "Fake", "U3V", "Aravis Fake 1", "", "1",
            GenTL::DEVICE_ACCESS_STATUS_UNKNOWN, ""}}));
}

TEST(Usb3VisionSource, cameraOfTheListIsOpened)
{
    Usb3VisionSource source;
    const auto camera = source.openCamera("usb", "Fake_1", GenTL::DEVICE_ACCESS_CONTROL);
    writeNumber(*camera, FakeCameraRegister::width, 200);
    EXPECT_EQ(source.updateDevices("usb", {}).size(), 1U);
    EXPECT_EQ(readNumber(*camera, FakeCameraRegister::width), 200U) << "a search does not disturb the camera";
    const auto open = [&](const char *id, GenTL::DEVICE_ACCESS_FLAGS access) {
        return errorOf([&] { source.openCamera("usb", id, access); });
    };
    EXPECT_EQ(open("Fake_2", GenTL::DEVICE_ACCESS_CONTROL), GenTL::GC_ERR_INVALID_ID);
    EXPECT_EQ(open("Fake_1", GenTL::DEVICE_ACCESS_READONLY), GenTL::GC_ERR_NOT_IMPLEMENTED);
}

TEST(Usb3VisionSource, listIsEmptyWhileUsbCannotBeSearched)
{
    Usb3VisionSource source;
    testing::internal::CaptureStderr();
    {
        const DescriptorLimit limit(2); // libusb needs more, and a sanitizer's pipe needs two.
        for (int round = 0; round < 3; ++round)
            EXPECT_TRUE(source.updateDevices("usb", {}).empty());
    }
    EXPECT_EQ(source.updateDevices("usb", {}).size(), 1U);
    const std::string printed = testing::internal::GetCapturedStderr();
    EXPECT_EQ(printed.find("Universal USB3 Vision producer: USB cannot be searched: "), 0U) << printed;
    EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1) << printed;
}
