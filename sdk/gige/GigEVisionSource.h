#pragma once

#include "sdk/gige/GigEDiscovery.h"
#include "sdk/producer/DeviceSource.h"

/// Finds and opens GigE Vision cameras of any vendor. Each IPv4 address of this machine is one GenTL
/// interface. A camera that cannot be reached because its address is in another subnet is listed without
/// access.
class GigEVisionSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds timeout) override;
    std::unique_ptr<OpenCamera> openCamera(const std::string &interfaceId, const std::string &deviceId,
        GenTL::DEVICE_ACCESS_FLAGS access) override;
    int listChangedDescriptor() const override;

private:
    GigEDiscovery m_discovery;
};
