#pragma once

#include "sdk/aravis/NetworkInterfaces.h"
#include "sdk/aravis/SharedSearch.h"
#include "sdk/producer/DeviceSource.h"

#include <functional>

/// GigE Vision cameras of any vendor. Each address of a network interface is an interface, which lists the
/// devices of its network. One more interface lists devices whose address is in none of these networks.
class GigEVisionSource final : public DeviceSource
{
public:
    using ListAddresses = std::function<std::vector<InterfaceAddress>()>;

    /// @param findDevices Searches for devices; their interface is filled in here.
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
