#include "sdk/aravis/AravisDevices.h"

#include "sdk/aravis/AravisError.h"
#include "sdk/aravis/AravisLibrary.h"

#include <arv.h>
#include <memory>
#include <mutex>

namespace {

/// Returns the text as valid UTF-8, because devices send strings in any encoding.
std::string toUtf8(const char *text)
{
    const std::unique_ptr<char, void (*)(void *)> valid(g_utf8_make_valid(text ? text : "", -1), g_free);
    return valid.get();
}

// libaravis has one object per process for USB, and two device sources can use this object: a closed source
// may still be searching when the next source starts.
std::mutex interfaceMutex;

FoundDevice readDevice(ArvInterface *interface, unsigned index)
{
    FoundDevice device;
    device.id = toUtf8(arv_interface_get_device_physical_id(interface, index));
    device.vendor = toUtf8(arv_interface_get_device_vendor(interface, index));
    device.model = toUtf8(arv_interface_get_device_model(interface, index));
    device.serial = toUtf8(arv_interface_get_device_serial_nbr(interface, index));
    return device;
}

} // namespace

std::string displayName(const FoundDevice &device)
{
    std::string name;
    for (const std::string *part : {&device.vendor, &device.model, &device.serial}) {
        if (!name.empty() && !part->empty())
            name += ' ';
        name += *part;
    }
    return name.empty() ? device.id : name;
}

std::vector<FoundDevice> findDevices()
{
    keepAravisLoaded();
    const std::lock_guard lock(interfaceMutex);
    // arv_update_device_list() is not used, because its list belongs to the whole process, which may also
    // contain a producer for another protocol.
    ArvInterface *const interface = arv_uv_interface_get_instance();
    arv_interface_update_device_list(interface);
    std::vector<FoundDevice> found;
    const unsigned count = arv_interface_get_n_devices(interface);
    for (unsigned index = 0; index < count; ++index)
        found.push_back(readDevice(interface, index));
    return found;
}

GObjectPointer<ArvDevice> openDevice(const FoundDevice &device)
{
    keepAravisLoaded();
    const std::lock_guard lock(interfaceMutex);
    const std::lock_guard parserLock(aravisParserMutex());
    AravisError error;
    GObjectPointer<ArvDevice> opened(
        arv_interface_open_device(arv_uv_interface_get_instance(), device.id.c_str(), error.receiver()));
    if (!opened)
        throw error.toGenTl(displayName(device) + " cannot be opened");
    return opened;
}

DeviceRecord toRecord(const FoundDevice &device)
{
    DeviceRecord record; // The access status stays unknown, because only an open device reports it.
    record.id = device.id;
    record.vendor = device.vendor;
    record.model = device.model;
    record.tlType = GenTL::TLTypeU3VName;
    record.displayName = displayName(device);
    record.serial = device.serial;
    return record;
}
