#pragma once

#include "sdk/aravis/AravisSearch.h"
#include "sdk/producer/DeviceSource.h"

#include <mutex>

/// USB3 Vision cameras of any maker, on one interface, the USB host.
/// While USB cannot be searched there are none, which is reported on standard error once.
class Usb3VisionSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(const std::string &interfaceId) override;

private:
    bool isUsbReady();
    static std::string interfaceIdOf(const FoundDevice &device);

    AravisSearch m_search{arv_uv_interface_get_instance, interfaceIdOf, AravisSearch::Answers::AreCertain};

    std::mutex m_mutex; // Guards what follows.
    bool m_isReady = false;
    bool m_isReported = false;
};
