#pragma once

#include "sdk/aravis/AravisSearch.h"
#include "sdk/producer/DeviceSource.h"

/// GigE Vision cameras of any maker. There is one interface per address of a network card, with the devices
/// of its network, and one more for devices whose address fits no card.
class GigEVisionSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(const std::string &interfaceId) override;

private:
    static std::string interfaceIdOf(const FoundDevice &device);

    AravisSearch m_search{arv_gv_interface_get_instance, interfaceIdOf, AravisSearch::Answers::MayGetLost};
};
