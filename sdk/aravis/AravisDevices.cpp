#include "sdk/aravis/AravisDevices.h"

#include <dlfcn.h>
#include <memory>
#include <mutex>

namespace {

/// Returns valid UTF-8; devices send strings in any encoding.
std::string toUtf8(const char *text)
{
    const std::unique_ptr<char, void (*)(void *)> valid(g_utf8_make_valid(text ? text : "", -1), g_free);
    return valid.get();
}

/// Returns false for an ID of zeros: a device that is only software may have no hardware address.
bool identifiesDevice(const std::string &physicalId)
{
    return physicalId.find_first_not_of("0:") != std::string::npos;
}

/// Keeps libaravis in the process when the producer is unloaded: GLib has pointers into it, and libusb below
/// it has a thread, until the process ends.
void keepAravisLoaded()
{
    Dl_info library{};
    if (dladdr(reinterpret_cast<const void *>(&arv_interface_get_type), &library) != 0)
        dlopen(library.dli_fname, RTLD_NOW); // This reference is never released.
}

FoundDevice readDevice(ArvInterface *interface, unsigned index)
{
    FoundDevice device;
    device.id = toUtf8(arv_interface_get_device_physical_id(interface, index));
    if (!identifiesDevice(device.id))
        device.id = toUtf8(arv_interface_get_device_id(interface, index)); // Vendor, model and serial number.
    device.vendor = toUtf8(arv_interface_get_device_vendor(interface, index));
    device.model = toUtf8(arv_interface_get_device_model(interface, index));
    device.serial = toUtf8(arv_interface_get_device_serial_nbr(interface, index));
    device.address = toUtf8(arv_interface_get_device_address(interface, index));
    return device;
}

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

} // namespace

std::vector<FoundDevice> findDevices(ArvInterface *(*interfaceInstance)())
{
    // Static, because Aravis has one object per protocol and process, which two device sources can share: one
    // that was closed may still be in a search when the next one starts.
    static std::mutex interfaceMutex;
    const std::lock_guard lock(interfaceMutex);
    static std::once_flag once;
    std::call_once(once, keepAravisLoaded);
    // Not arv_update_device_list(): that list belongs to the whole process, in which a producer for another
    // protocol may be loaded too.
    ArvInterface *const interface = interfaceInstance();
    arv_interface_update_device_list(interface);
    std::vector<FoundDevice> found;
    const unsigned count = arv_interface_get_n_devices(interface);
    for (unsigned index = 0; index < count; ++index)
        found.push_back(readDevice(interface, index));
    return found;
}

DeviceRecord toRecord(const FoundDevice &device, const std::string &tlType)
{
    DeviceRecord record; // The access status stays unknown: Aravis would have to open the device.
    record.id = device.id;
    record.vendor = device.vendor;
    record.model = device.model;
    record.tlType = tlType;
    record.displayName = displayName(device);
    record.serial = device.serial;
    return record;
}
