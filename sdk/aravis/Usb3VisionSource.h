#pragma once

#include "sdk/aravis/SharedSearch.h"
#include "sdk/producer/DeviceSource.h"

#include <mutex>

/// Finds and opens USB3 Vision cameras of any vendor. All cameras are on one interface, the USB host. A
/// camera can be opened by one program at a time, so it cannot be watched. While USB cannot be searched, no
/// cameras are reported. The first failure prints a line on standard error.
class Usb3VisionSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds timeout) override;
    std::unique_ptr<OpenCamera> openCamera(const std::string &interfaceId, const std::string &deviceId,
        GenTL::DEVICE_ACCESS_FLAGS access) override;

private:
    bool isUsbReady();

    SharedSearch m_search{findDevices};

    std::mutex m_mutex; // Guards the members below.
    bool m_isReady = false;
    bool m_isReported = false;
};
