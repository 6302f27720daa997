#include "sdk/aravis/GigEVisionSource.h"

#include "sdk/aravis/NetworkCards.h"

namespace {

constexpr char elsewhereId[] = "elsewhere";

std::string interfaceIdOf(const FoundDevice &device, const std::vector<CardAddress> &cards)
{
    const CardAddress *const card = cardOf(cards, device.address);
    return card ? card->address : elsewhereId;
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
    const std::vector<FoundDevice> found = m_search.devices();
    const std::vector<CardAddress> cards = cardAddresses();
    std::vector<DeviceRecord> devices;
    for (const FoundDevice &device : found) {
        const std::string id = interfaceIdOf(device, cards);
        // Its card may have gone with it; then it is nowhere.
        const bool mayHaveLostCard = device.isMissed && id == elsewhereId;
        if (id == interfaceId && !mayHaveLostCard)
            devices.push_back(toRecord(device, GenTL::TLTypeGEVName));
    }
    return devices;
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<GigEVisionSource>();
}
