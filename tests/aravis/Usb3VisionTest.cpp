// USB3 Vision where there is no camera, and where USB cannot be searched at all.

#include "tests/aravis/CameraLister.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace GenTL;

namespace {

/// While it lives, the process can open no file and no device: libusb cannot start.
class NoMoreDescriptors
{
public:
    NoMoreDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        rlimit none = m_before;
        none.rlim_cur = 3;
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreDescriptors() { setrlimit(RLIMIT_NOFILE, &m_before); }
    NoMoreDescriptors(const NoMoreDescriptors &) = delete;
    NoMoreDescriptors &operator=(const NoMoreDescriptors &) = delete;

private:
    rlimit m_before{};
};

} // namespace

TEST(Usb3Vision, WhileUsbCannotBeSearchedTheListIsEmptyAndOneLineSaysSo)
{
    CameraLister lister(UNIVERSAL_U3V_FILE);
    testing::internal::CaptureStderr();
    {
        const NoMoreDescriptors limit;
        for (int round = 0; round < 3; ++round)
            EXPECT_EQ(lister.cameras(), ListedCameras{});
    }
    const std::string printed = testing::internal::GetCapturedStderr();
    EXPECT_EQ(printed.find("Universal USB3 Vision producer: USB cannot be searched: "), 0U) << printed;
    EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1) << printed;
}

TEST(Usb3Vision, TheListComesQuicklyAndSilentlyAndOnOneInterface)
{
    CameraLister lister(UNIVERSAL_U3V_FILE);
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    const auto start = std::chrono::steady_clock::now();
    lister.cameras(); // On a machine with cameras there may be some.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(lister.interfaces(), std::vector<std::string>{"usb"});
    EXPECT_EQ(lister.session().interfaceText("usb", INTERFACE_INFO_TLTYPE), "U3V");
}
