#pragma once

#include "sdk/aravis/SharedSearch.h"
#include "sdk/producer/DeviceSource.h"

#include <mutex>

/// USB3 Vision cameras of any vendor, on one interface, the USB host.
/// While USB cannot be searched there are none, and one line on standard error reports that once.
class Usb3VisionSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(const std::string &interfaceId) override;

private:
    bool isUsbReady();
    static std::vector<FoundDevice> search();

    SharedSearch m_search{search, SharedSearch::Transport::Reliable};

    std::mutex m_mutex; // Guards what follows.
    bool m_isReady = false;
    bool m_isReported = false;
};
