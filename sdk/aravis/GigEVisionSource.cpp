#include "sdk/aravis/GigEVisionSource.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char elsewhereId[] = "elsewhere";

} // namespace

GigEVisionSource::GigEVisionSource(
    SharedSearch::Search findDevices, ListAddresses listAddresses, std::chrono::milliseconds maxAge)
    : m_findDevices(std::move(findDevices)),
      m_listAddresses(std::move(listAddresses)),
      m_search([this] { return search(); }, SharedSearch::Transport::Lossy, maxAge)
{ }

ProducerIdentity GigEVisionSource::identity() const
{
    return {"UniversalGEV", "Orvelle", "Universal GigE Vision", CORVIX_PRODUCER_VERSION, GenTL::TLTypeGEVName,
        "Universal GigE Vision producer"};
}

std::vector<InterfaceRecord> GigEVisionSource::updateInterfaces()
{
    // Reports interfaces without a device too, because a consumer updates interfaces less often than devices.
    std::vector<InterfaceRecord> interfaces;
    for (const InterfaceAddress &address : m_listAddresses())
        interfaces.push_back({address.address,
            "Network card " + address.interfaceName + " (" + address.address + ")", GenTL::TLTypeGEVName});
    interfaces.push_back(
        {elsewhereId, "Addresses outside the network cards' networks", GenTL::TLTypeGEVName});
    return interfaces;
}

std::vector<DeviceRecord> GigEVisionSource::updateDevices(const std::string &interfaceId)
{
    std::vector<DeviceRecord> devices;
    for (const FoundDevice &device : m_search.devices()) {
        if (device.interfaceId == interfaceId && !hasLostInterface(device))
            devices.push_back(toRecord(device, GenTL::TLTypeGEVName));
    }
    return devices;
}

std::vector<FoundDevice> GigEVisionSource::search() const
{
    std::vector<FoundDevice> devices = m_findDevices();
    const std::vector<InterfaceAddress> addresses = m_listAddresses();
    for (FoundDevice &device : devices) {
        const InterfaceAddress *const address = findAddressFor(addresses, device.address);
        device.interfaceId = address ? address->address : elsewhereId;
    }
    return devices;
}

bool GigEVisionSource::hasLostInterface(const FoundDevice &device) const
{
    // The addresses are needed only if the last search did not find the device, which is rare.
    if (!device.isMissed || device.interfaceId == elsewhereId)
        return false;
    const std::vector<InterfaceAddress> addresses = m_listAddresses();
    return std::none_of(addresses.begin(), addresses.end(),
        [&](const InterfaceAddress &address) { return address.address == device.interfaceId; });
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<GigEVisionSource>(
        [] { return findDevices(arv_gv_interface_get_instance); }, interfaceAddresses);
}
