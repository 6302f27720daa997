#include "sdk/aravis/GigEVisionSource.h"

#include "sdk/aravis/NetworkCards.h"

#include <algorithm>

namespace {

constexpr char elsewhereId[] = "elsewhere";

/// Its card may have gone with a device that a search misses.
bool hasLostCard(const FoundDevice &device)
{
    if (!device.isMissed || device.interfaceId == elsewhereId)
        return false;
    const std::vector<CardAddress> cards = cardAddresses();
    return std::none_of(cards.begin(), cards.end(),
        [&](const CardAddress &card) { return card.address == device.interfaceId; });
}

} // namespace

ProducerIdentity GigEVisionSource::identity() const
{
    return {"UniversalGEV", "Orvelle", "Universal GigE Vision", CORVIX_PRODUCER_VERSION, GenTL::TLTypeGEVName,
        "Universal GigE Vision producer"};
}

std::vector<InterfaceRecord> GigEVisionSource::updateInterfaces()
{
    // Also those without a device: a consumer looks for new interfaces less often than for new devices.
    std::vector<InterfaceRecord> interfaces;
    for (const CardAddress &card : cardAddresses())
        interfaces.push_back(
            {card.address, "Network card " + card.card + " (" + card.address + ")", GenTL::TLTypeGEVName});
    interfaces.push_back(
        {elsewhereId, "Addresses outside the network cards' networks", GenTL::TLTypeGEVName});
    return interfaces;
}

std::vector<DeviceRecord> GigEVisionSource::updateDevices(const std::string &interfaceId)
{
    std::vector<DeviceRecord> devices;
    for (const FoundDevice &device : m_search.devices()) {
        if (device.interfaceId == interfaceId && !hasLostCard(device))
            devices.push_back(toRecord(device, GenTL::TLTypeGEVName));
    }
    return devices;
}

std::string GigEVisionSource::interfaceIdOf(const FoundDevice &device)
{
    const std::vector<CardAddress> cards = cardAddresses();
    const CardAddress *const card = cardOf(cards, device.address);
    return card ? card->address : elsewhereId;
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<GigEVisionSource>();
}
