#pragma once

#include "sdk/aravis/NetworkInterfaces.h"
#include "sdk/aravis/SharedSearch.h"
#include "sdk/producer/DeviceSource.h"

#include <functional>

/// Finds GigE Vision cameras of any vendor. Each address of a network interface is one GenTL interface, which
/// reports the devices of its network. One more GenTL interface reports the devices of all other networks.
class GigEVisionSource final : public DeviceSource
{
public:
    using ListAddresses = std::function<std::vector<InterfaceAddress>()>;

    /// @param findDevices Searches for devices. The source itself sets the interface of each device.
    /// @param maxAge See SharedSearch.
    GigEVisionSource(SharedSearch::Search findDevices, ListAddresses listAddresses,
        std::chrono::milliseconds maxAge = SharedSearch::defaultMaxAge);

    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(const std::string &interfaceId) override;

private:
    std::vector<FoundDevice> search() const;
    bool hasLostInterface(const FoundDevice &device) const;

    const SharedSearch::Search m_findDevices;
    const ListAddresses m_listAddresses;
    SharedSearch m_search;
};
