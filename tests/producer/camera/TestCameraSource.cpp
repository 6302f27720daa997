// This file defines the device source of the test producer.

#include "sdk/producer/DeviceSource.h"
#include "tests/producer/camera/TestCamera.h"

using namespace GenTL;

namespace {

/// Reports three cameras on the interface "one", and none on the interface "two".
class TestCameraSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override
    {
        return {"TestProducer", "Test Vendor", "Test Model", "1.2.3", TLTypeMixedName, "Test Producer"};
    }

    std::vector<InterfaceRecord> updateInterfaces() override
    {
        return {{"one", "Interface One", TLTypeGEVName}, {"two", "Interface Two", TLTypeU3VName}};
    }

    std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds) override
    {
        m_gate.open();
        if (interfaceId != "one")
            return {};
        std::vector<DeviceRecord> records;
        for (const char *const id : {"camera", "control only", "in use"})
            records.push_back({id, "Camera Vendor", "Camera Model", TLTypeGEVName, "Shown", "User", "Serial",
                DEVICE_ACCESS_STATUS_READWRITE, ""});
        return records;
    }

    std::unique_ptr<OpenCamera> openCamera(
        const std::string &, const std::string &deviceId, DEVICE_ACCESS_FLAGS access) override
    {
        if (deviceId == "in use")
            throw GenTlError(GC_ERR_ACCESS_DENIED, "Somebody else uses the camera.");
        const DEVICE_ACCESS_STATUS status = access == DEVICE_ACCESS_READONLY
            ? DEVICE_ACCESS_STATUS_OPEN_READONLY
            : DEVICE_ACCESS_STATUS_OPEN_READWRITE;
        return std::make_unique<TestCamera>(m_gate, status, deviceId == "camera");
    }

private:
    TestGate m_gate;
};

} // namespace

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<TestCameraSource>();
}
