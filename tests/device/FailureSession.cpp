#include "tests/device/FailureSession.h"

using namespace CvxCPP;
using namespace std::chrono_literals;

FailingDevice::FailingDevice()
{
    options.hostProgram = CVX_CAMERA_HOST;
    options.reopenInterval = 20ms;
    options.inUseTimeout = 0ms;
}

FailingDevice::~FailingDevice()
{
    close();
    EXPECT_TRUE(waitUntil([&] { return hosts().empty(); }));
    EXPECT_EQ(openDescriptors(), m_descriptors);
    EXPECT_EQ(producer.count("violation"), 0U) << testing::PrintToString(producer.log());
}

CvxResult FailingDevice::open(CvxAccess access, const std::string &camera)
{
    if (!devices)
        devices = std::make_unique<OpenDevices>(options);
    const CvxResult result = devices->open({producer.ctiPath(), "net0", camera, access, "Camera"}, device);
    if (result) {
        EXPECT_TRUE(device->AddObserver(recorder));
    }
    return result;
}

void FailingDevice::openAndStream()
{
    const CvxResult opened = open();
    ASSERT_TRUE(opened) << opened.text;
    const CvxResult started = device->StartStream(4, StreamPolicy::EveryImage, stream);
    ASSERT_TRUE(started) << started.text;
    const CvxResult received = waitForImage();
    ASSERT_TRUE(received) << received.text;
}

DeviceState FailingDevice::state() const
{
    std::uint32_t reopenCount = 0;
    return device->GetState(reopenCount);
}

bool FailingDevice::waitForState(DeviceState expected) const
{
    return waitUntil([&] { return state() == expected; });
}

void FailingDevice::close()
{
    image = nullptr;
    stream = nullptr;
    if (device) {
        EXPECT_TRUE(device->Close());
    }
    device = nullptr;
    devices = nullptr;
}

void FailingDevice::expectUsable()
{
    producer.setScript("");
    close();
    openAndStream();
}
