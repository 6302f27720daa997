#include "sdk/gige/GigEVisionSource.h"

#include "sdk/gige/GigECamera.h"

#include <algorithm>
#include <arpa/inet.h>

namespace {

/// Returns vendor, model and serial number. If all of them are empty, returns the ID.
std::string displayName(const ListedCamera &camera)
{
    std::string name;
    for (const std::string *part : {&camera.data.vendor, &camera.data.model, &camera.data.serial}) {
        if (!name.empty() && !part->empty())
            name += ' ';
        name += *part;
    }
    return name.empty() ? camera.id : name;
}

DeviceRecord toRecord(const ListedCamera &camera)
{
    DeviceRecord record;
    record.id = camera.id;
    record.vendor = camera.data.vendor;
    record.model = camera.data.model;
    record.tlType = GenTL::TLTypeGEVName;
    record.displayName = displayName(camera);
    record.userName = camera.data.userName;
    record.serial = camera.data.serial;
    record.version = camera.data.version;
    // Only an open camera reports whether another program uses it.
    record.accessStatus
        = camera.isReachable ? GenTL::DEVICE_ACCESS_STATUS_UNKNOWN : GenTL::DEVICE_ACCESS_STATUS_NOACCESS;
    return record;
}

} // namespace

ProducerIdentity GigEVisionSource::identity() const
{
    return {"UniversalGEV", "Orvelle", "Universal GigE Vision", CORVIX_PRODUCER_VERSION, GenTL::TLTypeGEVName,
        "Universal GigE Vision producer"};
}

std::vector<InterfaceRecord> GigEVisionSource::updateInterfaces()
{
    std::vector<InterfaceRecord> interfaces;
    for (const InterfaceList &list : m_discovery.interfaces())
        interfaces.push_back({list.id, "Network interface " + list.networkInterface + " (" + list.id + ")",
            GenTL::TLTypeGEVName});
    return interfaces;
}

std::vector<DeviceRecord> GigEVisionSource::updateDevices(
    const std::string &interfaceId, std::chrono::milliseconds timeout)
{
    std::vector<DeviceRecord> devices;
    for (const ListedCamera &camera : m_discovery.cameras(interfaceId, timeout))
        devices.push_back(toRecord(camera));
    return devices;
}

std::unique_ptr<OpenCamera> GigEVisionSource::openCamera(
    const std::string &interfaceId, const std::string &deviceId, GenTL::DEVICE_ACCESS_FLAGS access)
{
    const std::vector<ListedCamera> cameras = m_discovery.cameras(interfaceId, {});
    const auto camera = std::find_if(cameras.begin(), cameras.end(),
        [&deviceId](const ListedCamera &candidate) { return candidate.id == deviceId; });
    if (camera == cameras.end())
        throw GenTlError(GenTL::GC_ERR_INVALID_ID, "The camera " + deviceId + " does not answer any more.");
    const std::string name = displayName(*camera);
    if (!camera->isReachable)
        throw GenTlError(GenTL::GC_ERR_ACCESS_DENIED,
            name + " cannot be reached: its address " + ipv4ToString(camera->data.address)
                + " is not in the subnet of " + interfaceId + '.');
    return openGigECamera({name, ntohl(inet_addr(interfaceId.c_str())), camera->data.address}, access);
}

int GigEVisionSource::listChangedDescriptor() const
{
    return m_discovery.listChangedDescriptor();
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<GigEVisionSource>();
}
