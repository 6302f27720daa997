#include "CvxCPP/Device.h"
#include "tests/device/DeviceTest.h"
#include "tests/sdk/support/SystemTest.h"

#include <future>

using namespace CvxCPP;

namespace {

/// Opens cameras of a camera system whose producer lists them.
class SystemDevicesTest : public SystemTest
{
protected:
    SystemDevicesTest()
    {
        options.device.hostProgram = SCRIPTED_CAMERA_HOST;
        addProducer("producer", "interface net0|Net|GEV\ndevice net0|D7|Orvelle|Kx200|24030117|Left|GEV\n");
    }

    std::shared_ptr<Device> opened(Camera &listed)
    {
        std::shared_ptr<Device> device;
        const CvxResult result = listed.Open(CvxAccessControl, device);
        EXPECT_TRUE(result) << result.text;
        return device;
    }

    Cameras cameras;
};

} // namespace

TEST_F(SystemDevicesTest, listedCameraIsOpened)
{
    start();
    cameras = list();
    ASSERT_EQ(cameras.size(), 1U);
    const auto device = opened(*cameras[0]);
    EXPECT_EQ(readFile(ctiPath("producer.cti.log")), "openDevice net0 D7 1\n");
    NodeValue value;
    EXPECT_EQ(device->Read("None", value).text, "Orvelle Kx200 (24030117): \"None\" does not exist.");
}

TEST_F(SystemDevicesTest, shutdownClosesTheDevices)
{
    start();
    cameras = list();
    ASSERT_EQ(cameras.size(), 1U);
    const auto device = opened(*cameras[0]), other = opened(*cameras[0]);
    const auto observer = std::make_shared<DeviceRecorder>();
    ASSERT_TRUE(device->AddObserver(observer));
    EXPECT_EQ(system->Shutdown(), CvxErrorSuccess);
    EXPECT_EQ(observer->calls(), (Lines{"state 3 "}));
    std::int64_t width = 0;
    EXPECT_EQ(device->ReadInteger("Width", width).code, CvxErrorClosed);
    EXPECT_EQ(other->ReadInteger("Width", width).code, CvxErrorClosed);
    std::shared_ptr<Device> late;
    const CvxResult result = cameras[0]->Open(CvxAccessControl, late);
    EXPECT_EQ(result.code, CvxErrorNotStarted);
    EXPECT_EQ(result.text, "Orvelle Kx200 (24030117): The camera system does not run.");
}

TEST_F(SystemDevicesTest, observerOfADeviceCannotShutTheSystemDown)
{
    class Observer : public DeviceRecorder
    {
    public:
        explicit Observer(CvxSystem &system) : m_system(system) { }
        void NodesChanged(const std::vector<std::string> &) override
        {
            codes.set_value({m_system.Shutdown(), m_system.Startup()});
        }
        std::promise<std::pair<CvxError, CvxError>> codes;

    private:
        CvxSystem &m_system;
    };
    start();
    cameras = list();
    ASSERT_EQ(cameras.size(), 1U);
    const auto device = opened(*cameras[0]);
    const auto observer = std::make_shared<Observer>(*system);
    ASSERT_TRUE(device->AddObserver(observer));
    ASSERT_TRUE(device->WriteInteger("Width", 100));
    const auto codes = observer->codes.get_future().get();
    EXPECT_EQ(codes.first, CvxErrorFailed);
    EXPECT_EQ(codes.second, CvxErrorAlreadyStarted);
}
