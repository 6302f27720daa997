#include "sdk/protocol/CameraRecords.h"

#include "sdk/protocol/JsonConversions.h"

#include <tuple>

namespace {

auto fieldsOf(const DeviceRecord &device)
{
    return std::tie(
        device.id, device.vendor, device.model, device.serial, device.name, device.type, device.userName);
}

auto fieldsOf(const InterfaceRecord &interface)
{
    return std::tie(interface.number, interface.id, interface.name, interface.type, interface.devices);
}

} // namespace

bool operator==(const DeviceRecord &a, const DeviceRecord &b)
{
    return fieldsOf(a) == fieldsOf(b);
}

bool operator==(const InterfaceRecord &a, const InterfaceRecord &b)
{
    return fieldsOf(a) == fieldsOf(b);
}

bool operator<(const DeviceRecord &a, const DeviceRecord &b)
{
    return fieldsOf(a) < fieldsOf(b);
}

CORVIX_JSON_CONVERSIONS(DeviceRecord, id, vendor, model, serial, name, type, userName)
CORVIX_JSON_CONVERSIONS(InterfaceRecord, number, id, name, type, devices)
