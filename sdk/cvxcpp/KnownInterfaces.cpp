#include "sdk/cvxcpp/KnownInterfaces.h"

#include "sdk/cvxcpp/TransportLayerName.h"

#include <algorithm>
#include <utility>

using namespace CvxCPP;

namespace {

constexpr unsigned maxMissedSearches = 2;

bool isNetworkType(CvxTransportLayerType type)
{
    return type == CvxTransportLayerGigE || type == CvxTransportLayerEthernet;
}

/// Returns true if the device answers over a network. If the interface does not say so, the device's own
/// type decides.
bool isNetworkDevice(const InterfaceRecord &interface, const DeviceRecord &device)
{
    const CvxTransportLayerType type = transportLayerType(interface.type);
    if (type == CvxTransportLayerUnknown || type == CvxTransportLayerMixed)
        return isNetworkType(transportLayerType(device.type));
    return isNetworkType(type);
}

/// Sorts the devices. The host has sorted them by raw bytes, but replacing malformed bytes by U+FFFD may
/// have changed the order.
void sortDevices(InterfaceRecord &interface)
{
    std::stable_sort(interface.devices.begin(), interface.devices.end(), std::less<>());
}

/// Returns the number of unreported devices that may be kept beside the reported ones.
std::size_t roomBeside(std::size_t reportedDevices)
{
    return KnownInterfaces::maxDevices - std::min(KnownInterfaces::maxDevices, reportedDevices);
}

} // namespace

bool KnownInterfaces::replaceAll(std::vector<InterfaceRecord> interfaces, SearchKind kind, TimePoint now)
{
    std::size_t reportedDevices = 0;
    for (InterfaceRecord &interface : interfaces) {
        sortDevices(interface);
        reportedDevices += interface.devices.size();
    }
    std::stable_sort(
        interfaces.begin(), interfaces.end(), [](const auto &a, const auto &b) { return a.id < b.id; });

    std::size_t remainingDevices = roomBeside(reportedDevices);
    std::vector<Interface> updated;
    for (InterfaceRecord &interface : interfaces) {
        const Interface *known = findKnown(interface.id);
        updated.push_back(merged(known, std::move(interface), kind, now, remainingDevices));
    }
    m_interfaces.swap(updated);
    return !std::equal(updated.begin(), updated.end(), m_interfaces.begin(), m_interfaces.end(),
        [](const Interface &a, const Interface &b) { return a.record == b.record; });
}

bool KnownInterfaces::replace(InterfaceRecord interface, SearchKind kind, TimePoint now)
{
    sortDevices(interface);
    const auto known = std::find_if(m_interfaces.begin(), m_interfaces.end(),
        [&](const Interface &candidate) { return candidate.record->number == interface.number; });
    if (known == m_interfaces.end())
        return false;
    std::size_t devices = interface.devices.size();
    for (const Interface &other : m_interfaces)
        devices += &other != &*known ? other.record->devices.size() : 0;
    std::size_t remainingDevices = roomBeside(devices);
    Interface updated = merged(&*known, std::move(interface), kind, now, remainingDevices);
    std::swap(*known, updated);
    return known->record != updated.record;
}

/// Combines the reply of a search with the devices that the interface had before. `remainingDevices` is the
/// number of unreported devices that may still be kept.
KnownInterfaces::Interface KnownInterfaces::merged(const Interface *known, InterfaceRecord reported,
    SearchKind kind, TimePoint now, std::size_t &remainingDevices)
{
    const DeviceState seen{now};
    if (!known || *known->record == reported) {
        const std::size_t count = reported.devices.size();
        return {known ? known->record : std::make_shared<const InterfaceRecord>(std::move(reported)),
            std::vector<DeviceState>(count, seen)};
    }

    std::vector<DeviceRecord> reply = std::exchange(reported.devices, {});
    std::vector<DeviceState> states;
    const auto add = [&](DeviceRecord device, const DeviceState &state) {
        reported.devices.push_back(std::move(device));
        states.push_back(state);
    };
    auto next = reply.begin(); // Both lists are sorted by ID.
    for (std::size_t i = 0; i < known->states.size(); ++i) {
        const DeviceRecord &device = known->record->devices[i];
        for (; next != reply.end() && next->id < device.id; ++next)
            add(std::move(*next), seen);
        const bool isReported = next != reply.end() && next->id == device.id;
        if (isReported || remainingDevices == 0)
            continue;
        --remainingDevices;
        add(device, known->states[i].afterMiss(kind, isNetworkDevice(reported, device)));
    }
    for (; next != reply.end(); ++next)
        add(std::move(*next), seen);
    return {reported == *known->record ? known->record
                                       : std::make_shared<const InterfaceRecord>(std::move(reported)),
        std::move(states)};
}

KnownInterfaces::DeviceState KnownInterfaces::DeviceState::afterMiss(SearchKind kind, bool isOnNetwork) const
{
    DeviceState result = *this;
    if (kind == SearchKind::Background)
        ++result.missedSearches;
    if (!isOnNetwork || kind == SearchKind::SelfUpdating || result.missedSearches >= maxMissedSearches)
        result.isMissing = true;
    return result;
}

bool KnownInterfaces::Interface::hasMissing() const
{
    return std::any_of(
        states.begin(), states.end(), [](const DeviceState &state) { return state.isMissing; });
}

bool KnownInterfaces::Interface::reports(const std::string &deviceId) const
{
    const std::vector<DeviceRecord> &devices = record->devices;
    const auto found = std::lower_bound(devices.begin(), devices.end(), deviceId,
        [](const DeviceRecord &device, const std::string &id) { return device.id < id; });
    return found != devices.end() && found->id == deviceId
        && !states[static_cast<std::size_t>(found - devices.begin())].isMissing;
}

bool KnownInterfaces::hasMissing() const
{
    return std::any_of(m_interfaces.begin(), m_interfaces.end(),
        [](const Interface &interface) { return interface.hasMissing(); });
}

bool KnownInterfaces::removeMissing(const IsHeld &isHeld)
{
    bool isAnyRemoved = false;
    for (Interface &interface : m_interfaces) {
        if (!interface.hasMissing())
            continue;
        const InterfaceRecord &record = *interface.record;
        InterfaceRecord rest{record.number, record.id, record.name, record.type, {}};
        std::vector<DeviceState> states;
        for (std::size_t i = 0; i < record.devices.size(); ++i) {
            const DeviceRecord &device = record.devices[i];
            const DeviceState &state = interface.states[i];
            if (state.isMissing
                && (!isHeld(record, device, state.lastReport) || isReportedElsewhere(device.id, interface)))
                continue;
            rest.devices.push_back(device);
            states.push_back(state);
        }
        if (rest.devices.size() == record.devices.size())
            continue;
        interface = {std::make_shared<const InterfaceRecord>(std::move(rest)), std::move(states)};
        isAnyRemoved = true;
    }
    return isAnyRemoved;
}

bool KnownInterfaces::isReportedElsewhere(const std::string &deviceId, const Interface &interface) const
{
    return std::any_of(m_interfaces.begin(), m_interfaces.end(),
        [&](const Interface &other) { return &other != &interface && other.reports(deviceId); });
}

std::vector<KnownInterfaces::Record> KnownInterfaces::records() const
{
    std::vector<Record> records;
    for (const Interface &interface : m_interfaces)
        records.push_back(interface.record);
    return records;
}

KnownInterfaces::Record KnownInterfaces::find(const std::string &interfaceId) const
{
    const Interface *known = findKnown(interfaceId);
    return known ? known->record : nullptr;
}

const KnownInterfaces::Interface *KnownInterfaces::findKnown(const std::string &interfaceId) const
{
    const auto found = std::lower_bound(m_interfaces.begin(), m_interfaces.end(), interfaceId,
        [](const Interface &interface, const std::string &id) { return interface.record->id < id; });
    return found != m_interfaces.end() && found->record->id == interfaceId ? &*found : nullptr;
}
