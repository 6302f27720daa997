// USB3 Vision where there is no camera, and where USB cannot be searched at all.

#include "tests/aravis/CameraLister.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace GenTL;

namespace {

/// While it lives, the process has two descriptors left: libusb cannot start, but the sanitizers, which need
/// a pipe for a moment, work.
class FewDescriptors
{
public:
    FewDescriptors()
    {
        const int lowest = dup(STDOUT_FILENO);
        close(lowest);
        getrlimit(RLIMIT_NOFILE, &m_before);
        rlimit few = m_before;
        few.rlim_cur = static_cast<rlim_t>(lowest) + 2;
        setrlimit(RLIMIT_NOFILE, &few);
    }
    ~FewDescriptors() { setrlimit(RLIMIT_NOFILE, &m_before); }
    FewDescriptors(const FewDescriptors &) = delete;
    FewDescriptors &operator=(const FewDescriptors &) = delete;

private:
    rlimit m_before{};
};

} // namespace

TEST(Usb3Vision, WhileUsbCannotBeSearchedTheListIsEmptyAndOneLineSaysSo)
{
    const ProducerSession session(UNIVERSAL_U3V_FILE);
    session.updateInterfaces();
    const IF_HANDLE handle = session.open("usb");
    testing::internal::CaptureStderr();
    {
        const FewDescriptors limit;
        for (int round = 0; round < 3; ++round) {
            session.updateDevices(handle);
            EXPECT_TRUE(session.deviceIds(handle).empty());
        }
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
